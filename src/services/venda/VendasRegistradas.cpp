#include "services/venda/VendasRegistradas.h"

#include "frame/servicos/Codigos.h"
#include "frame/servicos/Pagamento.h"
#include "services/Banco.h"
#include "services/banco/Session.h"

namespace services {
namespace {

void AddItems(Session& session, VendaRegistrada& sale) {
  static const Statement select(
      "SELECT nome_do_item, nome_do_animal, quantidade, valor_unitario, desconto_em_valor,"
      " valor_total, numero_de_lancamento FROM itens_de_venda WHERE numero_da_venda = $1"
      " ORDER BY item");
  session.Select(select, {sale.numero}, [&](const Row& row) {
    sale.itens.push_back({.nome = row.Text(0),
                          .animal = row.Text(1),
                          .quantidade = row.Money(2),
                          .valorUnitario = row.Money(3),
                          .desconto = row.Money(4),
                          .valorTotal = row.Money(5),
                          .preVenda = row.Integer(6) != 0});
  });
}

void AddTenders(Session& session, VendaRegistrada& sale) {
  static const Statement tenders(
      "SELECT moeda, valor FROM lancamentos_de_caixa WHERE numero_da_venda = $1 AND tipo = $2"
      " ORDER BY numero");
  static const Statement dueDates(
      "SELECT data_de_vencimento FROM contas_a_receber WHERE numero_da_venda = $1 ORDER BY numero");
  const auto tender = std::int32_t{servicos::kRecebimento};
  session.Select(tenders, {sale.numero, tender}, [&](const Row& row) {
    sale.recebimentos.push_back({.moeda = row.Number(0), .valor = row.Money(1), .vencimento = ""});
  });
  std::vector<std::string> due;
  session.Select(dueDates, {sale.numero}, [&](const Row& row) {
    due.push_back(base::Format(row.Moment(0), base::DateMask::kDayMonthYear));
  });
  auto next = due.begin();
  for (VendaRegistrada::Recebimento& each : sale.recebimentos) {
    if (each.moeda == servicos::pagamento::kACredito && next != due.end())
      each.vencimento = *next++;
  }
}

std::string SelectSales(const std::string& which) {
  return "SELECT numero, data_e_hora, numero_do_caixa, operador, codigo_do_cliente,"
         " apelido_do_cliente, valor_bruto, valor_liquido, troco, credito_mantido, chave_sat, " +
         std::string(kDescontoNosItens) + ", " + std::string(kDescontoDaVenda) + " FROM vendas " +
         which;
}

std::vector<VendaRegistrada> ReadSales(Session& session, const Statement& select,
                                       const Params& params) {
  std::vector<VendaRegistrada> sales;
  session.Select(select, params, [&](const Row& row) {
    sales.push_back({.numero = row.Number(0),
                     .quando = row.Moment(1),
                     .caixa = row.Number(2),
                     .operador = row.Text(3),
                     .codigoDoCliente = row.Number(4),
                     .nomeDoCliente = row.Text(5),
                     .bruto = row.Money(6),
                     .descontoNosItens = row.Money(11),
                     .descontoDaVenda = row.Money(12),
                     .liquido = row.Money(7),
                     .troco = row.Money(8),
                     .creditoParaOCliente = row.Money(9),
                     .chaveSat = row.Text(10),
                     .itens = {},
                     .recebimentos = {}});
  });
  for (VendaRegistrada& sale : sales) {
    AddItems(session, sale);
    AddTenders(session, sale);
  }
  return sales;
}

}  // namespace

std::vector<VendaRegistrada> UltimasVendas(Banco& banco, std::int32_t quantas) {
  static const Statement latest(SelectSales("ORDER BY numero DESC LIMIT $1"));
  return ReadSales(banco.Sessao(), latest, {quantas});
}

std::optional<VendaRegistrada> LerVenda(Banco& banco, std::int32_t numero) {
  static const Statement one(SelectSales("WHERE numero = $1"));
  const auto sales = ReadSales(banco.Sessao(), one, {numero});
  return sales.empty() ? std::nullopt : std::optional(sales.front());
}

}  // namespace services
