#include <bitset>
#include <deque>

#include "base/Text.h"
#include "services/DatabaseError.h"
#include "services/EscritaDeVenda.h"
#include "services/TabelasDaVenda.h"

namespace services {
namespace {

/// The money, the credit and the pre-sale lines are taken first, where they are there to take. What
/// was not becomes a null in a column of the sale that takes none, and the whole statement fails.
constexpr std::string_view kTake =
    "WITH serie AS MATERIALIZED (SELECT CAST(nextval('vendas_numero_seq') AS integer) AS n),"
    " caixa AS (UPDATE caixas SET dinheiro = dinheiro + CAST($2 AS bigint)"
    " WHERE numero = CAST($1 AS integer) AND ativo = 1 AND aberto = 1 RETURNING numero),"
    " cliente AS (UPDATE clientes SET credito = credito - CAST($4 AS bigint) + CAST($5 AS bigint)"
    " WHERE codigo = CAST($3 AS integer) AND credito >= CAST($4 AS bigint)"
    " AND (CAST($4 AS bigint) <> 0 OR CAST($5 AS bigint) <> 0) RETURNING codigo),"
    " pre AS (UPDATE pre_vendas p SET numero_da_venda = s.n FROM serie s"
    " WHERE p.numero = ANY(CAST($6 AS integer[])) AND p.codigo_do_cliente = CAST($3 AS integer)"
    " AND p.numero_da_venda IS NULL RETURNING p.numero),"
    " venda AS (INSERT INTO vendas"
    " (numero, numero_do_caixa, codigo_do_cliente, itens_de_pre_venda, {names})"
    " SELECT s.n, (SELECT numero FROM caixa),"
    " CASE WHEN CAST($4 AS bigint) = 0 AND CAST($5 AS bigint) = 0 THEN CAST($3 AS integer)"
    " ELSE (SELECT codigo FROM cliente) END,"
    " CASE WHEN (SELECT count(*) FROM pre) = CAST($7 AS integer) THEN CAST($7 AS integer) END,"
    " {places} FROM serie s RETURNING numero)";
constexpr int kTakenPlaces = 7;
constexpr std::size_t kMostTables = 4;

/// "CAST($8 AS bigint), CAST($9 AS text)" and so on, from place `next` on; with `suffix` behind
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

/// Which tables a sale has rows in, a bit each; the others have no part in its statement, since the
/// server takes its time over them even when they get none.
using Used = std::bitset<kMostTables>;

std::string SaleText(Used used) {
  int next = kTakenPlaces + 1;
  std::string text = base::Replace(kTake, "{names}", Nomes(ColunasDaVenda()));
  text = base::Replace(text, "{places}", Places(ColunasDaVenda(), next));
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
    for (std::size_t tables = 0; tables < 1U << kMostTables; ++tables) {
      all.emplace_back(SaleText(tables));
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

Params SaleParams(const Venda& venda, const Rows& rows) {
  const auto preSales = venda.PreVendas();
  Params params{venda.numeroDoCaixa, venda.VariacaoDoDinheiro(), venda.codigoDoCliente,
                venda.creditoUsado,  venda.creditoMantido,       ArrayOf(preSales),
                preSales.size()};
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

std::optional<std::int32_t> EscreverNoPostgres(Session& session, const Venda& venda) {
  Rows rows;
  Used used;
  for (const TabelaDaVenda& table : TabelasDaVenda()) {
    rows.push_back(table.linhas(venda));
    used.set(rows.size() - 1, !rows.back().empty());
  }
  std::int32_t number = 0;
  try {
    session.Select(SaleInto(used), SaleParams(venda, rows),
                   [&](const Row& row) { number = row.Number(0); });
  } catch (const DatabaseError& error) {
    if (error.What() != Trouble::kConstraint) throw;
    return std::nullopt;
  }
  return number;
}

}  // namespace services
