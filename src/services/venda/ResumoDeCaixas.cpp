#include "services/venda/ResumoDeCaixas.h"

#include <array>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "base/Numbers.h"
#include "base/Text.h"
#include "frame/servicos/Pagamento.h"
#include "services/banco/Fields.h"
#include "services/banco/Session.h"
#include "services/venda/CodigosNoSql.h"

namespace services {
namespace {

using enum Field::Kind;

constexpr std::string_view kRegister = "CAST(x.numero AS text) || ' - ' || x.local_de_atendimento";

// What came in: the tenders of sales and settlements, and credit that was paid in. A settlement
// enters its change under its own kind, negative.
constexpr std::string_view kTakings = "l.tipo IN ({recebimento}, {acerto}, {creditoAdicionado})";
// Given back by cancellations, which restorations give back again, and credit that was paid out.
constexpr std::string_view kGivenBack = "l.tipo IN ({estorno}, {creditoDevolvido})";

std::string SumWhere(const std::string& condition) {
  return "CAST(coalesce(sum(CASE WHEN " + condition + " THEN l.valor ELSE 0 END), 0) AS bigint)";
}

/// A figure of the summary that is read from the entries; the others are worked out of these.
enum Figure {
  kOpening,
  kDeposits,
  kWithdrawals,
  kCash,
  kCheques,
  kCreditCards,
  kDebitCardsAndPix,
  kBankSlips,
  kChange,
  kCashGivenBack,
  kOtherGivenBack,
  kClosing,
  kOnCredit,
  kFigures,
};

std::string SummedFigures() {
  const std::string takings(kTakings);
  const std::string givenBack(kGivenBack);
  const std::array<std::string, kFigures> conditions{
      "l.tipo = {abertura} AND l.moeda = {dinheiro}",
      "l.tipo = {entrada} AND l.moeda = {dinheiro}",
      "l.tipo = {saida} AND l.moeda = {dinheiro}",
      takings + " AND l.moeda = {dinheiro} AND l.valor > 0",
      takings + " AND l.moeda = {cheque}",
      takings + " AND l.moeda = {cartaoDeCredito}",
      takings + " AND l.moeda IN ({cartaoDeDebito}, {pix})",
      takings + " AND l.moeda = {boleto}",
      "l.tipo = {troco} OR (l.tipo = {acerto} AND l.moeda = {dinheiro} AND l.valor < 0)",
      givenBack + " AND l.moeda = {dinheiro}",
      givenBack + " AND l.moeda NOT IN ({dinheiro}, {aCredito}, {creditoDoCliente})",
      "l.tipo = {fechamento} AND l.moeda = {dinheiro}",
      "l.tipo = {recebimento} AND l.moeda = {aCredito} AND v.situacao <> {cancelada}"};
  std::string columns;
  for (const std::string& condition : conditions) columns += ", " + SumWhere(condition);
  return columns;
}

/// The register and the days, as the places $1 to $3 of a selection; a register of 0 is all.
Params PlacesOf(const Cobertura& coverage) {
  return {coverage.caixa.value_or(0), coverage.de.Date(), coverage.ate.Date().PlusDays(1)};
}

/// The entries that are covered, `l`, each with its register, `x`: the registers come first, so
/// that of each no more than its days is read.
constexpr std::string_view kCovered =
    " FROM caixas x CROSS JOIN lancamentos_de_caixa l{join} WHERE ($1 = 0 OR x.numero = $1)"
    " AND l.numero_do_caixa = x.numero AND l.data_e_hora >= $2 AND l.data_e_hora < $3";

std::string Covered(std::string_view join = {}) {
  return base::Replace(kCovered, "{join}", join);
}

std::string SelectSummary(const std::string& day) {
  return ComCodigos("SELECT " + std::string(kRegister) + ", " + day + " AS dia" + SummedFigures() +
                    Covered(" LEFT JOIN vendas v ON l.tipo = {recebimento}"
                            " AND l.moeda = {aCredito} AND v.numero = l.numero_da_venda") +
                    " GROUP BY x.numero, x.local_de_atendimento, dia ORDER BY x.numero, dia");
}

constexpr std::string_view kFields[] = {"NumeroENomeDoCaixa",
                                        "DataDoLancamento",
                                        "Abertura",
                                        "Entrada",
                                        "Saida",
                                        "Dinheiro",
                                        "Troco",
                                        "EstornoEmDinheiro",
                                        "Fechamento",
                                        "EmCaixa",
                                        "Cheque",
                                        "CartaoDeCredito",
                                        "CartaoDeDebitoEPIX",
                                        "Boleto",
                                        "TotalDePagamentos",
                                        "EstornoEmOutrosRecebimentos",
                                        "ACredito"};

using Figures = std::array<base::Currency, kFigures>;

std::vector<base::Value> RowOf(const std::string& drawer, base::DateTime day, const Figures& f) {
  const base::Currency inDrawer = f[kOpening] + f[kDeposits] + f[kWithdrawals] + f[kCash] +
                                  f[kChange] + f[kCashGivenBack] + f[kClosing];
  const base::Currency payments = f[kCash] + f[kChange] + f[kCheques] + f[kCreditCards] +
                                  f[kDebitCardsAndPix] + f[kBankSlips] + f[kCashGivenBack] +
                                  f[kOtherGivenBack];
  return {drawer,
          day,
          f[kOpening],
          f[kDeposits],
          f[kWithdrawals],
          f[kCash],
          f[kChange],
          f[kCashGivenBack],
          f[kClosing],
          inDrawer,
          f[kCheques],
          f[kCreditCards],
          f[kDebitCardsAndPix],
          f[kBankSlips],
          payments,
          f[kOtherGivenBack],
          f[kOnCredit]};
}

constexpr Field kEntries[] = {
    {"NumeroENomeDoCaixa", kText, kRegister},
    {"DataDoLancamento", kMoment, "substr(CAST(l.data_e_hora AS text), 1, 10)"},
    {"HoraDoLancamento", kText, "substr(CAST(l.data_e_hora AS text), 12, 8)"},
    {"NumeroDoLancamento", kNumber, "l.numero"},
    {"NumeroDaVenda", kNumber, "l.numero_da_venda"},
    {"Operador", kText, "l.operador"},
    {"Descricao", kText, "l.descricao"},
    {"Valor", kMoney, "l.valor"},
    {"Moeda", kNumber, "l.moeda"},
    {"Observacao", kText, "l.observacao"},
    {"ValorRecebido", kMoney,
     "CASE WHEN l.tipo NOT IN ({abertura}, {fechamento}, {entrada}, {saida}) THEN l.valor END"},
};

constexpr std::size_t kSale = 4, kTender = 8, kNote = 9;

/// Of each sale that is covered, the tenders that moved no money: a line each, to stand behind the
/// observation of the sale's entries.
std::map<std::int32_t, std::string> TendersWithoutMoney(Session& session,
                                                        const Cobertura& coverage) {
  static const Statement select(
      ComCodigos("SELECT l.numero_da_venda, l.moeda, l.valor" + Covered() +
                 " AND l.tipo = {recebimento} AND l.moeda IN ({aCredito}, {creditoDoCliente})"
                 " ORDER BY l.numero"),
      Statement::Planning::kByValues);
  std::map<std::int32_t, std::string> texts;
  session.Select(select, PlacesOf(coverage), [&](const Row& row) {
    texts[row.Number(0)] += "\n" + std::string(servicos::pagamento::NomeDa(row.Number(1))) + ": " +
                            base::FormatMoney(row.Money(2));
  });
  return texts;
}

}  // namespace

base::RecordSetPtr ResumoDeCaixas(Session& session, const Cobertura& cobertura) {
  static const Statement summary(SelectSummary("substr(l.data_e_hora, 1, 10)"),
                                 SelectSummary("CAST(l.data_e_hora AS date)"),
                                 Statement::Planning::kByValues);
  const auto rows = std::make_shared<base::RecordSet>(
      std::vector<std::string>(std::begin(kFields), std::end(kFields)));
  session.Select(summary, PlacesOf(cobertura), [&](const Row& row) {
    Figures figures;
    int column = 2;
    for (base::Currency& figure : figures) figure = row.Money(column++);
    rows->Append(RowOf(row.Text(0), row.Moment(1), figures));
  });
  return rows;
}

Selected LancamentosDeCaixas(Session& session, const Cobertura& cobertura, std::int64_t most) {
  static const Statement entries(ComCodigos("SELECT " + ColumnsOf(kEntries) + Covered() +
                                            " AND l.moeda NOT IN ({aCredito}, {creditoDoCliente})"
                                            " ORDER BY x.numero, l.data_e_hora, l.numero"),
                                 Statement::Planning::kByValues);
  const auto withoutMoney = TendersWithoutMoney(session, cobertura);
  return SelectRows(session, kEntries, entries, PlacesOf(cobertura), most,
                    [&](std::vector<base::Value>& entry) {
                      const std::int32_t tender = base::ToInt32(entry[kTender]);
                      entry[kTender] = std::string(servicos::pagamento::NomeDa(tender));
                      if (base::IsNull(entry[kSale])) return;
                      const auto found = withoutMoney.find(base::ToInt32(entry[kSale]));
                      if (found == withoutMoney.end()) return;
                      entry[kNote] = base::ToText(entry[kNote]) + found->second;
                    });
}

}  // namespace services
