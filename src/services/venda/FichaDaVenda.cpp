#include "services/venda/FichaDaVenda.h"

#include "services/Banco.h"
#include "services/banco/Session.h"

namespace services {
namespace {

void LerLancamentos(Session& session, FichaDaVenda& ficha) {
  static const Statement entries(
      "SELECT tipo, moeda, valor FROM lancamentos_de_caixa WHERE numero_da_venda = $1"
      " ORDER BY numero");
  session.Select(entries, {ficha.venda.numero}, [&](const Row& row) {
    ficha.lancamentos.push_back({.tipo = static_cast<servicos::TipoDeMovimento>(row.Number(0)),
                                 .moeda = row.Number(1),
                                 .valor = row.Money(2)});
  });
}

void LerContas(Session& session, FichaDaVenda& ficha) {
  static const Statement receivables(
      "SELECT numero_da_parcela, numero_de_parcelas, data_de_vencimento, valor_do_documento,"
      " situacao FROM contas_a_receber WHERE numero_da_venda = $1 ORDER BY numero");
  session.Select(receivables, {ficha.venda.numero}, [&](const Row& row) {
    ficha.contas.push_back({.parcela = row.Number(0),
                            .parcelas = row.Number(1),
                            .vencimento = row.Moment(2),
                            .valor = row.Money(3),
                            .situacao = row.Text(4)});
  });
}

void LerCreditos(Session& session, FichaDaVenda& ficha) {
  static const Statement credits(
      "SELECT valor, observacao FROM creditos_do_cliente WHERE numero_da_venda = $1"
      " ORDER BY numero");
  session.Select(credits, {ficha.venda.numero}, [&](const Row& row) {
    ficha.creditos.push_back({.valor = row.Money(0), .observacao = row.Text(1)});
  });
}

void LerPreVendas(Session& session, FichaDaVenda& ficha) {
  static const Statement closed(
      "SELECT numero, nome_do_item FROM pre_vendas WHERE numero_da_venda = $1 ORDER BY numero");
  session.Select(closed, {ficha.venda.numero}, [&](const Row& row) {
    ficha.preVendas.push_back({.numero = row.Number(0), .nome = row.Text(1)});
  });
}

void LerReversoes(Session& session, FichaDaVenda& ficha) {
  static const Statement reversals(
      "SELECT situacao, data_e_hora, operador, consentido_por, motivo FROM cancelamentos_de_venda"
      " WHERE numero_da_venda = $1 ORDER BY numero");
  session.Select(reversals, {ficha.venda.numero}, [&](const Row& row) {
    ficha.reversoes.push_back({.desfaz = row.Text(0) == servicos::kEfetuada,
                               .quando = row.Moment(1),
                               .operador = row.Text(2),
                               .consentidoPor = row.Text(3),
                               .motivo = row.Text(4)});
  });
}

}  // namespace

std::optional<FichaDaVenda> LerFichaDaVenda(Banco& banco, std::int32_t numero) {
  const std::optional<VendaRegistrada> venda = LerVenda(banco, numero);
  if (!venda) return std::nullopt;
  FichaDaVenda ficha;
  ficha.venda = *venda;
  for (auto* ler : {LerLancamentos, LerContas, LerCreditos, LerPreVendas, LerReversoes}) {
    ler(banco.Sessao(), ficha);
  }
  return ficha;
}

}  // namespace services
