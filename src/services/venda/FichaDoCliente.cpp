#include "services/venda/FichaDoCliente.h"

#include "services/Banco.h"
#include "services/banco/Session.h"

namespace services {

std::optional<FichaDoCliente> LerFichaDoCliente(Banco& banco, std::int32_t codigo) {
  static const Statement customer(
      "SELECT apelido, nome, credito, limite_de_credito FROM clientes WHERE codigo = $1");
  static const Statement receivables(
      "SELECT numero_da_venda, data_de_vencimento, valor_do_documento FROM contas_a_receber"
      " WHERE codigo_do_cliente = $1 AND data_de_recebimento IS NULL"
      " ORDER BY data_de_vencimento, numero");
  static const Statement preSales(
      "SELECT numero, nome_do_item, valor_total FROM pre_vendas"
      " WHERE codigo_do_cliente = $1 AND numero_da_venda IS NULL ORDER BY numero");
  std::optional<FichaDoCliente> ficha;
  banco.Sessao().Select(customer, {codigo}, [&](const Row& row) {
    ficha = FichaDoCliente{.apelido = row.Text(0),
                           .nome = row.Text(1),
                           .credito = row.Money(2),
                           .limite = row.Money(3),
                           .contasEmAberto = {},
                           .preVendasEmAberto = {}};
  });
  if (!ficha) return ficha;
  banco.Sessao().Select(receivables, {codigo}, [&](const Row& row) {
    ficha->contasEmAberto.push_back(
        {.venda = row.Number(0), .vencimento = row.Moment(1), .valor = row.Money(2)});
  });
  banco.Sessao().Select(preSales, {codigo}, [&](const Row& row) {
    ficha->preVendasEmAberto.push_back(
        {.numero = row.Number(0), .nome = row.Text(1), .valor = row.Money(2)});
  });
  return ficha;
}

}  // namespace services
