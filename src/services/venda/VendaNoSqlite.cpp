#include <algorithm>
#include <deque>
#include <iterator>

#include "services/banco/DatabaseError.h"
#include "services/banco/Preenchimento.h"
#include "services/venda/EscritaDeVenda.h"
#include "services/venda/LimiteDeCredito.h"
#include "services/venda/TabelasDaVenda.h"

namespace services {
namespace {

/// INSERT of so many rows whose first columns are `guarded`, and then those of the table.
std::string InsertText(std::string_view table, const std::string& guarded,
                       std::size_t countOfGuarded, std::span<const Coluna> columns,
                       std::size_t rows = 1) {
  const std::size_t width = countOfGuarded + columns.size();
  std::string text =
      "INSERT INTO " + std::string(table) + " (" + guarded + ", " + Nomes(columns) + ") VALUES ";
  for (std::size_t row = 0; row < rows; ++row) {
    text += (row == 0 ? "(" : ", (") + Places(width, row * width + 1) + ")";
  }
  return text;
}

/// The file is this transaction's alone: what is found stays so until it ends.
bool MayBuy(Session& session, const Venda& venda, const Estacao& estacao) {
  if (!OutroDetentor(session, venda.codigoDoCliente, estacao).empty()) return false;
  return CabeNoLimite(session, venda.codigoDoCliente, venda.SujeitoAoLimite());
}

bool TakeMoney(Session& session, const Venda& venda) {
  static const Statement money(
      "UPDATE caixas SET dinheiro = dinheiro + $2 WHERE numero = $1 AND ativo = 1 AND aberto = 1");
  static const Statement credit(
      "UPDATE clientes SET credito = credito - $2 + $3 WHERE codigo = $1 AND credito >= $2");
  if (session.Run(money, {venda.numeroDoCaixa, venda.VariacaoDoDinheiro()}) == 0) return false;
  if (venda.creditoUsado.IsZero() && venda.creditoMantido.IsZero()) return true;
  return session.Run(credit, {venda.codigoDoCliente, venda.creditoUsado, venda.creditoMantido}) > 0;
}

std::int32_t InsertSale(Session& session, const Venda& venda) {
  static const Statement insert(InsertText("vendas",
                                           "numero_do_caixa, codigo_do_cliente, itens_de_pre_venda",
                                           3, ColunasDaVenda()) +
                                " RETURNING numero");
  Params values{venda.numeroDoCaixa, venda.codigoDoCliente, venda.PreVendas().size()};
  Params own = LinhaDaVenda(venda);
  std::ranges::move(own, std::back_inserter(values));
  std::int32_t number = 0;
  session.Select(insert, values, [&](const Row& row) { number = row.Number(0); });
  return number;
}

/// A long sale writes its rows several at a time: most of a row's cost is that of its statement.
constexpr std::size_t kTogether = 8;

/// One statement for each table, made at the first sale.
const Statement& InsertInto(std::size_t table, bool together) {
  static const auto statements = [] {
    std::deque<Statement> all;
    for (const std::size_t rows : {std::size_t{1}, kTogether}) {
      for (const TabelaDaVenda& each : TabelasDaVenda()) {
        all.emplace_back(InsertText(each.nome, "numero_da_venda", 1, each.colunas, rows));
      }
    }
    return all;
  }();
  return statements[table + (together ? TabelasDaVenda().size() : 0)];
}

void WriteRows(Session& session, std::size_t table, std::vector<Params> rows, std::int32_t number) {
  for (std::size_t done = 0; done < rows.size();) {
    const bool together = rows.size() - done >= kTogether;
    const std::size_t end = done + (together ? kTogether : 1);
    Params values;
    values.reserve((end - done) * (rows[done].size() + 1));
    for (; done < end; ++done) {
      values.emplace_back(number);
      std::ranges::move(rows[done], std::back_inserter(values));
    }
    session.Run(InsertInto(table, together), values);
  }
}

bool SettlePreSales(Session& session, const Venda& venda, std::int32_t number) {
  static const Statement settle(
      "UPDATE pre_vendas SET numero_da_venda = $2 WHERE numero = $1 AND codigo_do_cliente = $3"
      " AND numero_da_venda IS NULL");
  for (const std::int32_t preSale : venda.PreVendas()) {
    if (session.Run(settle, {preSale, number, venda.codigoDoCliente}) == 0) return false;
  }
  return true;
}

}  // namespace

std::optional<std::int32_t> EscreverNoSqlite(Session& session, const Venda& venda,
                                             const Estacao& estacao) {
  try {
    if (!MayBuy(session, venda, estacao)) return std::nullopt;
    if (!TakeMoney(session, venda)) return std::nullopt;
    const std::int32_t number = InsertSale(session, venda);
    for (std::size_t table = 0; table < TabelasDaVenda().size(); ++table) {
      WriteRows(session, table, TabelasDaVenda()[table].linhas(venda), number);
    }
    if (!SettlePreSales(session, venda, number)) return std::nullopt;
    return number;
  } catch (const DatabaseError& error) {
    // Nobody is registered under the customer's code.
    if (error.What() != Trouble::kConstraint) throw;
    return std::nullopt;
  }
}

}  // namespace services
