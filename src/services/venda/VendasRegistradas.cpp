#include "services/venda/VendasRegistradas.h"

#include "frame/servicos/Pagamento.h"
#include "services/Banco.h"
#include "services/banco/Session.h"
#include "services/venda/CodigosNoSql.h"

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
  static const Statement tenders(SelecaoDosRecebimentos("$1"));
  static const Statement dueDates(
      "SELECT data_de_vencimento FROM contas_a_receber WHERE numero_da_venda = $1 ORDER BY numero");
  sale.recebimentos = LerRecebimentosDasVendas(session, tenders, {sale.numero})[sale.numero];
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
         " apelido_do_cliente, valor_bruto, " +
         std::string(kDescontoNosItens) + ", " + std::string(kDescontoDaVenda) +
         ", total_de_descontos, valor_liquido, total_recebido, troco, credito_anterior,"
         " credito_usado, credito_mantido, custo, comissao, lucro_em_valor, situacao, observacao,"
         " chave_sat FROM vendas " +
         which;
}

VendaRegistrada HeaderOf(const Row& row) {
  int next = 0;
  VendaRegistrada sale;
  sale.numero = row.Number(next++);
  sale.quando = row.Moment(next++);
  sale.caixa = row.Number(next++);
  sale.operador = row.Text(next++);
  sale.codigoDoCliente = row.Number(next++);
  sale.nomeDoCliente = row.Text(next++);
  for (base::Currency* const amount :
       {&sale.bruto, &sale.descontoNosItens, &sale.descontoDaVenda, &sale.totalDeDescontos,
        &sale.liquido, &sale.totalRecebido, &sale.troco, &sale.creditoAnterior, &sale.creditoUsado,
        &sale.creditoParaOCliente, &sale.custo, &sale.comissao, &sale.lucro}) {
    *amount = row.Money(next++);
  }
  for (std::string* const text : {&sale.situacao, &sale.observacao, &sale.chaveSat}) {
    *text = row.Text(next++);
  }
  return sale;
}

std::vector<VendaRegistrada> ReadSales(Session& session, const Statement& select,
                                       const Params& params) {
  std::vector<VendaRegistrada> sales;
  session.Select(select, params, [&](const Row& row) { sales.push_back(HeaderOf(row)); });
  for (VendaRegistrada& sale : sales) {
    AddItems(session, sale);
    AddTenders(session, sale);
  }
  return sales;
}

}  // namespace

std::string SelecaoDosRecebimentos(const std::string& quais) {
  return ComCodigos(
      "SELECT numero_da_venda, moeda, valor FROM lancamentos_de_caixa WHERE tipo = {recebimento}"
      " AND numero_da_venda IN (" +
      quais + ") ORDER BY numero_da_venda, numero");
}

std::map<std::int32_t, std::vector<VendaRegistrada::Recebimento>> LerRecebimentosDasVendas(
    Session& session, const Statement& selecao, const Params& params) {
  std::map<std::int32_t, std::vector<VendaRegistrada::Recebimento>> recebimentos;
  session.Select(selecao, params, [&](const Row& row) {
    recebimentos[row.Number(0)].push_back(
        {.moeda = row.Number(1), .valor = row.Money(2), .vencimento = ""});
  });
  return recebimentos;
}

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
