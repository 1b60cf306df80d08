#include <algorithm>
#include <iterator>

#include "frame/servicos/Codigos.h"
#include "services/banco/Preenchimento.h"
#include "services/demonstracao/ClinicaDeDemonstracao.h"
#include "services/demonstracao/DadosDeDemonstracao.h"

namespace services::demonstracao {
namespace {

using enum servicos::TipoDeLancamento;

constexpr std::int64_t kReal = base::Currency::kScale;
constexpr std::int64_t kCentavo = base::Currency::kScale / 100;
constexpr std::int64_t kPercent = base::Currency::kScale;

/// Lines of work done or goods set aside, by the codes of customer, item, animal and employee.
struct PreSale {
  servicos::TipoDeLancamento kind;
  std::int32_t customer, item, animalAt, employee, quantity, discountPercent, daysAgo;
};

constexpr PreSale kPreSales[] = {
    {kServico, 5, 1, 0, 1, 1, 0, 1},    {kServico, 5, 5, 0, 1, 1, 0, 1},
    {kServico, 5, 6, 1, 1, 1, 0, 1},    {kProduto, 5, 3, 0, 0, 1, 0, 0},
    {kServico, 14, 30, 0, 3, 1, 10, 0}, {kServico, 14, 33, 0, 3, 1, 10, 0},
    {kServico, 39, 39, 1, 5, 2, 0, 2},  {kProduto, 39, 85, 0, 4, 3, 5, 0},
    {kServico, 20, 18, 0, 2, 1, 0, 3},
};

/// Receivables, by days from today to the due date.
struct Debt {
  std::int32_t customer, reais, days;
};

constexpr Debt kDebts[] = {
    {9, 120, -45}, {9, 85, -15}, {22, 64, -8}, {33, 230, -90}, {33, 115, 20},
    {24, 150, 12}, {5, 300, 25}, {12, 90, -1}, {36, 410, -33},
};

/// The number and name of one of a customer's animals, which are numbered through all customers.
Params AnimalOf(Session& session, std::int32_t customer, std::int32_t at) {
  static const Statement select(
      "SELECT codigo, nome FROM animais WHERE codigo_do_cliente = $1 ORDER BY codigo");
  Params animal{Param(), ""};
  std::int32_t count = 0;
  session.Select(select, {customer}, [&](const Row& row) {
    if (count++ == at) animal = {row.Integer(0), row.Text(1)};
  });
  return animal;
}

/// Type or barcode, name, unit, price, cost and the goods' own commission of the item.
Params ItemOf(Session& session, const PreSale& line) {
  static const Statement service(
      "SELECT tipo, '', nome, '', valor_de_venda, custo, 0 FROM servicos WHERE codigo = $1");
  static const Statement product(
      "SELECT 0, codigo_de_barras, nome, unidade_de_venda, valor_de_venda, valor_de_custo,"
      " percentual_de_comissao FROM produtos WHERE codigo_interno = $1");
  Params item;
  session.Select(line.kind == kServico ? service : product, {line.item}, [&](const Row& row) {
    item = {line.kind == kServico ? Param(row.Integer(0)) : Param(),
            row.Text(1),
            row.Text(2),
            row.Text(3),
            row.Integer(4),
            row.Integer(5),
            row.Integer(6)};
  });
  return item;
}

/// The employee's share of the line in ten-thousandths of a percent: for goods their own, for work
/// by its type.
std::int64_t Commission(const PreSale& line, const Params& item) {
  if (line.employee == 0) return 0;
  if (line.kind == kProduto) return *item[6].Integer();
  const Funcionario& employee = Funcionarios()[line.employee - 1];
  // The last share is for the other types, whose number stands apart.
  const auto last = std::ssize(employee.percentuais);
  const std::int32_t share = employee.percentuais[std::min(*item[0].Integer(), last) - 1];
  return (employee.unica ? employee.percentualUnico : share) * kPercent;
}

Params PreSaleRow(Session& session, const PreSale& line, base::DateTime now) {
  const Params item = ItemOf(session, line);
  const Params animal =
      line.kind == kServico ? AnimalOf(session, line.customer, line.animalAt) : Params{Param(), ""};
  const base::DateTime when = now.PlusDays(-line.daysAgo);
  const std::int64_t gross = *item[4].Integer() * line.quantity;
  const std::int64_t discount = gross * line.discountPercent / 100 / kCentavo * kCentavo;
  const std::int64_t commission = Commission(line, item);
  const Param employee = line.employee == 0 ? Param() : Param(line.employee);
  const std::string_view name =
      line.employee == 0 ? std::string_view() : Funcionarios()[line.employee - 1].apelido;
  return {std::int32_t{line.kind},
          line.customer,
          Param::Date(when),
          item[0],
          item[1],
          line.item,
          item[2],
          animal[0],
          animal[1],
          employee,
          name,
          line.quantity * kReal,
          item[4],
          line.discountPercent * kReal,
          discount,
          gross - discount,
          item[5],
          commission,
          (gross - discount) * commission / 100 / kPercent / kCentavo * kCentavo,
          item[3],
          when,
          "marina"};
}

Params DebtRow(const Debt& debt, base::DateTime now) {
  const Pessoa& person = Pessoas()[debt.customer - 1];
  const std::int64_t amount = debt.reais * kReal;
  return {debt.customer,
          person.apelido,
          person.nome,
          amount,
          0,
          0,
          1,
          1,
          1,
          "Saldo trazido do sistema anterior",
          Param::Date(now.PlusDays(debt.days)),
          amount,
          now,
          "marina"};
}

}  // namespace

void EscreverPendencias(Session& session, base::DateTime agora) {
  std::vector<Params> lines;
  for (const PreSale& line : kPreSales) lines.push_back(PreSaleRow(session, line, agora));
  InsertRows(
      session, "pre_vendas",
      "tipo_de_lancamento, codigo_do_cliente, data_de_lancamento, tipo_de_servico,"
      " codigo_de_barras, codigo_do_item, nome_do_item, codigo_do_animal, nome_do_animal,"
      " codigo_do_funcionario, nome_do_funcionario, quantidade, valor_unitario,"
      " desconto_em_percentual, desconto_em_valor, valor_total, custo, percentual_de_comissao,"
      " valor_da_comissao, unidade, incluido_em, incluido_por",
      lines);
  std::vector<Params> debts;
  for (const Debt& debt : kDebts) debts.push_back(DebtRow(debt, agora));
  InsertRows(session, "contas_a_receber",
             "codigo_do_cliente, apelido_do_cliente, nome_do_cliente, valor_da_venda,"
             " recebido_a_vista, percentual_recebido_a_vista, numero_da_parcela,"
             " numero_de_parcelas, numero_de_parcelas_anterior, historico, data_de_vencimento,"
             " valor_do_documento, incluido_em, incluido_por",
             debts);
}

}  // namespace services::demonstracao
