#include <bitset>
#include <deque>

#include "base/Text.h"
#include "services/banco/DatabaseError.h"
#include "services/banco/Search.h"
#include "services/venda/EscritaDeVenda.h"
#include "services/venda/LimiteDeCredito.h"
#include "services/venda/TabelasDaVenda.h"

namespace services {
namespace {

// Money, credit and pre-sale lines are taken one after the other, always in this order, where they
// are there to take. Only when all of that is done does the sale get its number, since a number
// that was drawn is gone whatever becomes of the sale: so none is missing. {1} and {2} are places.

/// Whoever takes a customer from now on waits for the end of the transaction: the lock refers to
/// this row. It stands before the sale's own statement, which so sees every lock and debt that was
/// there before.
const Statement& HoldCustomer() {
  static const Statement hold("SELECT 1 FROM clientes WHERE codigo = $1 FOR UPDATE");
  return hold;
}

constexpr std::string_view kMoney =
    "WITH caixa AS (UPDATE caixas SET dinheiro = dinheiro + CAST($2 AS bigint)"
    " WHERE numero = CAST($1 AS integer) AND ativo = 1 AND aberto = 1"
    " AND NOT EXISTS (SELECT 1 FROM travas_de_clientes"
    " WHERE codigo_do_cliente = CAST($3 AS integer) AND {held})"
    " AND {within} RETURNING numero),";
constexpr int kFirstPlaces = 6;
constexpr std::string_view kCredit =
    " cliente AS (UPDATE clientes SET credito = credito - CAST({1} AS bigint) + CAST({2} AS bigint)"
    " WHERE codigo = CAST($3 AS integer) AND credito >= CAST({1} AS bigint)"
    " AND EXISTS (SELECT 1 FROM caixa) RETURNING codigo),";
constexpr std::string_view kNoCredit =
    " cliente AS (SELECT codigo FROM clientes"
    " WHERE codigo = CAST($3 AS integer) AND EXISTS (SELECT 1 FROM caixa)),";
constexpr std::string_view kPreSales =
    " livres AS (SELECT numero FROM pre_vendas WHERE numero = ANY(CAST({1} AS integer[]))"
    " AND codigo_do_cliente = CAST($3 AS integer) AND numero_da_venda IS NULL"
    " AND EXISTS (SELECT 1 FROM cliente) ORDER BY numero FOR UPDATE),"
    " serie AS MATERIALIZED (SELECT CAST(nextval('vendas_numero_seq') AS integer) AS n"
    " WHERE EXISTS (SELECT 1 FROM cliente)"
    " AND (SELECT count(*) FROM livres) = cardinality(CAST({1} AS integer[]))),"
    " pre AS (UPDATE pre_vendas p SET numero_da_venda = s.n FROM serie s"
    " WHERE p.numero = ANY(CAST({1} AS integer[]))),";
constexpr std::string_view kNoPreSales =
    " serie AS MATERIALIZED (SELECT CAST(nextval('vendas_numero_seq') AS integer) AS n"
    " WHERE EXISTS (SELECT 1 FROM cliente)),";
constexpr std::string_view kSale =
    " venda AS (INSERT INTO vendas"
    " (numero, numero_do_caixa, codigo_do_cliente, itens_de_pre_venda, {names})"
    " SELECT s.n, CAST($1 AS integer), CAST($3 AS integer), CAST({1} AS integer), {places}"
    " FROM serie s RETURNING numero)";
constexpr std::size_t kMostTables = 4;

/// Takes the next place: its name in place of `mark`, wherever that stands.
std::string Placed(std::string_view text, std::string_view mark, int& next) {
  return base::Replace(text, mark, "$" + std::to_string(next++));
}

/// "CAST($4 AS bigint), CAST($5 AS text)" and so on, from place `next` on; with `suffix` behind
/// every type.
std::string Places(std::span<const Coluna> columns, int& next, std::string_view suffix = {}) {
  std::string places;
  for (const Coluna& column : columns) {
    if (!places.empty()) places += ", ";
    places.append("CAST($").append(std::to_string(next++)).append(" AS ");
    places.append(column.tipo).append(suffix).append(")");
  }
  return places;
}

/// The rows of a sale in each of its tables.
using Rows = std::vector<std::vector<Params>>;

/// What a sale touches, a bit each: the tables that get rows, the customer's credit, pre-sale
/// lines. The rest has no part in its statement, since the server takes its time over what comes to
/// nothing too.
using Used = std::bitset<kMostTables + 2>;
constexpr std::size_t kCreditBit = kMostTables;
constexpr std::size_t kPreSalesBit = kMostTables + 1;

std::string SaleText(Used used) {
  int next = kFirstPlaces + 1;
  std::string text = base::Replace(kMoney, "{held}", DeOutraEstacao(4, 5));
  text = base::Replace(text, "{within}", DentroDoLimite("$3", "$6"));
  text += used[kCreditBit] ? Placed(Placed(kCredit, "{1}", next), "{2}", next) : kNoCredit;
  text += used[kPreSalesBit] ? Placed(kPreSales, "{1}", next) : kNoPreSales;
  std::string sale = Placed(base::Replace(kSale, "{names}", Nomes(ColunasDaVenda())), "{1}", next);
  text += base::Replace(sale, "{places}", Places(ColunasDaVenda(), next));
  for (std::size_t i = 0; i < TabelasDaVenda().size(); ++i) {
    if (!used[i]) continue;
    const TabelaDaVenda& table = TabelasDaVenda()[i];
    text.append(", ").append(table.nome).append("_novos AS (INSERT INTO ").append(table.nome);
    text.append(" (numero_da_venda, ").append(Nomes(table.colunas));
    text.append(") SELECT s.n, r.* FROM serie s, unnest(");
    text.append(Places(table.colunas, next, "[]")).append(") AS r)");
  }
  return text + " SELECT numero FROM venda";
}

const Statement& SaleInto(Used used) {
  static const auto statements = [] {
    std::deque<Statement> all;
    for (std::size_t each = 0; each < 1U << Used().size(); ++each) {
      all.emplace_back(SaleText(each));
    }
    return all;
  }();
  return statements[used.to_ulong()];
}

/// A value as an element of an array text, quoted where it is a text.
void AppendElement(std::string& array, const Param& value) {
  if (const auto* number = value.Integer()) {
    array += std::to_string(*number);
  } else if (const auto* text = value.Text()) {
    array += '"';
    for (const char c : *text) {
      if (c == '"' || c == '\\') array += '\\';
      array += c;
    }
    array += '"';
  } else {
    array += "NULL";
  }
}

std::string ArrayOf(const std::vector<Params>& rows, std::size_t column) {
  std::string array = "{";
  for (const Params& row : rows) {
    if (array.size() > 1) array += ',';
    AppendElement(array, row[column]);
  }
  return array + '}';
}

std::string ArrayOf(const std::vector<std::int32_t>& numbers) {
  std::vector<Params> rows;
  rows.reserve(numbers.size());
  for (const std::int32_t number : numbers) rows.push_back({number});
  return ArrayOf(rows, 0);
}

/// In the order of the places.
Params SaleParams(const Venda& venda, const Estacao& estacao, const Rows& rows, Used used) {
  Params params{venda.numeroDoCaixa,   venda.VariacaoDoDinheiro(),
                venda.codigoDoCliente, ComputerForm(estacao.nome),
                estacao.marca,         venda.SujeitoAoLimite()};
  if (used[kCreditBit]) {
    params.emplace_back(venda.creditoUsado);
    params.emplace_back(venda.creditoMantido);
  }
  const auto preSales = venda.PreVendas();
  if (used[kPreSalesBit]) params.emplace_back(ArrayOf(preSales));
  params.emplace_back(preSales.size());
  for (Param& value : LinhaDaVenda(venda)) params.push_back(std::move(value));
  for (const std::vector<Params>& each : rows) {
    if (each.empty()) continue;
    for (std::size_t column = 0; column < each.front().size(); ++column) {
      params.emplace_back(ArrayOf(each, column));
    }
  }
  return params;
}

}  // namespace

std::optional<std::int32_t> EscreverNoPostgres(Session& session, const Venda& venda,
                                               const Estacao& estacao) {
  Rows rows;
  Used used;
  for (const TabelaDaVenda& table : TabelasDaVenda()) {
    rows.push_back(table.linhas(venda));
    used.set(rows.size() - 1, !rows.back().empty());
  }
  used.set(kCreditBit, !venda.creditoUsado.IsZero() || !venda.creditoMantido.IsZero());
  used.set(kPreSalesBit, !venda.PreVendas().empty());
  std::optional<std::int32_t> number;
  try {
    std::vector<Request> requests;
    requests.push_back({HoldCustomer(), Params(1, Param(venda.codigoDoCliente))});
    requests.push_back({SaleInto(used), SaleParams(venda, estacao, rows, used),
                        [&](const Row& row) { number = row.Number(0); }});
    session.RunTogether(requests);
  } catch (const DatabaseError& error) {
    if (error.What() != Trouble::kConstraint) throw;
  }
  return number;
}

}  // namespace services
