#include "services/venda/ResumoDeCaixas.h"

#include <array>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "base/Numbers.h"
#include "base/Text.h"
#include "frame/servicos/Codigos.h"
#include "frame/servicos/Pagamento.h"
#include "services/banco/Fields.h"
#include "services/banco/Session.h"
#include "services/venda/CodigosNoSql.h"

namespace services {
namespace {

using enum Field::Kind;
namespace pagamento = servicos::pagamento;

constexpr std::string_view kRegister = "CAST(x.numero AS text) || ' - ' || x.local_de_atendimento";

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
  kNoFigure,
};

/// Where what came in by a tender belongs: with the sales' tenders, those of settlements and credit
/// that was paid in.
Figure TakingsIn(std::int32_t tender) {
  switch (tender) {
    case pagamento::kDinheiro:
      return kCash;
    case pagamento::kCheque:
      return kCheques;
    case pagamento::kCartaoDeCredito:
      return kCreditCards;
    case pagamento::kCartaoDeDebito:
    case pagamento::kPix:
      return kDebitCardsAndPix;
    case pagamento::kBoleto:
      return kBankSlips;
    default:
      return kNoFigure;
  }
}

/// Where entries of a kind in a tender belong; `leaves` is for those below zero. What neither is
/// money nor on credit has no figure, nor has what the host entered in another tender than cash.
Figure FigureOf(std::int32_t kind, std::int32_t tender, bool leaves) {
  const bool isCash = tender == pagamento::kDinheiro;
  const bool isMoney = TakingsIn(tender) != kNoFigure;
  switch (kind) {
    case servicos::kAbertura:
      return isCash ? kOpening : kNoFigure;
    case servicos::kFechamento:
      return isCash ? kClosing : kNoFigure;
    case servicos::kEntrada:
      return isCash ? kDeposits : kNoFigure;
    case servicos::kSaida:
      return isCash ? kWithdrawals : kNoFigure;
    case servicos::kTroco:
      return kChange;
    case servicos::kEstorno:
    case servicos::kCreditoDevolvido:
      // Restorations give back what cancellations gave.
      if (!isMoney) return kNoFigure;
      return isCash ? kCashGivenBack : kOtherGivenBack;
    case servicos::kRecebimento:
      return tender == pagamento::kACredito ? kOnCredit : TakingsIn(tender);
    case servicos::kAcerto:
      // A settlement enters its change under its own kind.
      return isCash && leaves ? kChange : TakingsIn(tender);
    default:
      return TakingsIn(tender);
  }
}

/// The register and the days, as the places $1 to $3 of a selection; a register of 0 is all.
Params PlacesOf(const Cobertura& coverage) {
  constexpr std::int64_t kLastSecond = 24 * 60 * 60 - 1;
  return {coverage.caixa.value_or(0), coverage.de.Date(),
          coverage.ate.Date().PlusSeconds(kLastSecond)};
}

/// The entries that are covered, `l`, each with its register, `x`. The registers come first, so
/// that of each no more than its days is read: each engine has to be told so in its own way.
std::string Covered(Engine engine) {
  constexpr std::string_view kOnSqlite =
      " FROM caixas x CROSS JOIN lancamentos_de_caixa l WHERE ($1 = 0 OR x.numero = $1)"
      " AND l.numero_do_caixa = x.numero";
  constexpr std::string_view kOnPostgres =
      " FROM lancamentos_de_caixa l JOIN caixas x ON x.numero = l.numero_do_caixa"
      " WHERE l.numero_do_caixa = ANY (ARRAY(SELECT numero FROM caixas WHERE $1 = 0"
      " OR numero = $1))";
  return std::string(engine == Engine::kSqlite ? kOnSqlite : kOnPostgres) +
         " AND l.data_e_hora >= $2 AND l.data_e_hora <= $3";
}

/// A selection of covered entries, planned for the days that it is asked for.
/// `{day}` in the columns is the entry's.
Statement SelectEntries(const std::string& columns, const std::string& rest) {
  const auto on = [&](Engine engine) {
    const std::string_view day =
        engine == Engine::kSqlite ? "substr(l.data_e_hora, 1, 10)" : "CAST(l.data_e_hora AS date)";
    return ComCodigos(base::Replace("SELECT " + columns + Covered(engine) + rest, "{day}", day));
  };
  return Statement(on(Engine::kSqlite), on(Engine::kPostgres), Statement::Planning::kByValues);
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
  static const Statement select =
      SelectEntries("l.numero_da_venda, l.moeda, l.valor",
                    " AND l.tipo = {recebimento} AND l.moeda IN ({aCredito}, {creditoDoCliente})"
                    " ORDER BY l.numero");
  std::map<std::int32_t, std::string> texts;
  session.Select(select, PlacesOf(coverage), [&](const Row& row) {
    texts[row.Number(0)] += "\n" + std::string(pagamento::NomeDa(row.Number(1))) + ": " +
                            base::FormatMoney(row.Money(2));
  });
  return texts;
}

}  // namespace

base::RecordSetPtr ResumoDeCaixas(Session& session, const Cobertura& cobertura) {
  // What was bought on credit is told of the sales that stand, which only its entries look up.
  static const Statement summary = SelectEntries(
      std::string(kRegister) +
          ", {day} AS dia, l.tipo, l.moeda, CASE WHEN l.valor < 0 THEN 1 ELSE 0 END AS sai,"
          " CAST(sum(CASE WHEN l.tipo = {recebimento} AND l.moeda = {aCredito} AND"
          " (SELECT v.situacao FROM vendas v WHERE v.numero = l.numero_da_venda) = {cancelada}"
          " THEN 0 ELSE l.valor END) AS bigint)",
      " GROUP BY x.numero, x.local_de_atendimento, dia, l.tipo, l.moeda, sai"
      " ORDER BY x.numero, dia");
  const auto rows = std::make_shared<base::RecordSet>(
      std::vector<std::string>(std::begin(kFields), std::end(kFields)));
  std::string drawer, day;
  Figures figures;
  const auto tell = [&] {
    if (!day.empty()) rows->Append(RowOf(drawer, MomentOf(day), figures));
    figures = {};
  };
  session.Select(summary, PlacesOf(cobertura), [&](const Row& row) {
    if (row.Text(0) != drawer || row.Text(1) != day) tell();
    drawer = row.Text(0);
    day = row.Text(1);
    const Figure figure = FigureOf(row.Number(2), row.Number(3), row.Flag(4));
    if (figure != kNoFigure) figures[figure] += row.Money(5);
  });
  tell();
  return rows;
}

Selected LancamentosDeCaixas(Session& session, const Cobertura& cobertura, std::int64_t most) {
  static const Statement entries =
      SelectEntries(ColumnsOf(kEntries),
                    " AND l.moeda NOT IN ({aCredito}, {creditoDoCliente})"
                    " ORDER BY x.numero, l.data_e_hora, l.numero");
  const auto withoutMoney = TendersWithoutMoney(session, cobertura);
  return SelectRows(session, kEntries, entries, PlacesOf(cobertura), most,
                    [&](std::vector<base::Value>& entry) {
                      const std::int32_t tender = base::ToInt32(entry[kTender]);
                      entry[kTender] = std::string(pagamento::NomeDa(tender));
                      if (base::IsNull(entry[kSale])) return;
                      const auto found = withoutMoney.find(base::ToInt32(entry[kSale]));
                      if (found == withoutMoney.end()) return;
                      entry[kNote] = base::ToText(entry[kNote]) + found->second;
                    });
}

}  // namespace services
