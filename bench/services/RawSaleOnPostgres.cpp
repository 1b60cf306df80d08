#include <charconv>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "services/RawSale.h"
#include "support/RawPostgres.h"

namespace bench {
namespace {

/// A column that the twin writes, and its type.
struct Column {
  std::string name, type;
};

/// All but those that a new sale gets from the database.
std::vector<Column> ColumnsOf(RawPostgres& link, const std::string& table) {
  const auto found = link.Execute(
      "SELECT attname, format_type(atttypid, atttypmod) FROM pg_attribute"
      " WHERE attrelid = CAST($1 AS regclass) AND attnum > 0 AND NOT attisdropped"
      " AND attname NOT IN ('numero', 'numero_da_venda') ORDER BY attnum",
      {table.c_str()});
  std::vector<Column> columns;
  for (int row = 0; row < PQntuples(found.get()); ++row) {
    columns.push_back({PQgetvalue(found.get(), row, 0), PQgetvalue(found.get(), row, 1)});
  }
  return columns;
}

/// "a, b, c"; `around` is told with the column in place of "{n}" and "{t}".
std::string Listed(const std::vector<Column>& columns, const std::string& around, int firstPlace) {
  std::string all;
  for (const Column& column : columns) {
    std::string one = around;
    for (const auto& [mark, text] : {std::pair<std::string, std::string>{"{n}", column.name},
                                     {"{t}", column.type},
                                     {"{p}", "$" + std::to_string(firstPlace)}}) {
      if (const auto at = one.find(mark); at != std::string::npos) {
        one.replace(at, mark.size(), text);
      }
    }
    ++firstPlace;
    all += (all.empty() ? "" : ", ") + one;
  }
  return all;
}

/// One statement that writes everything.
class Twin {
 public:
  Twin(const std::string& connection, const ModelSale& model, Commit commit)
      : link_(connection), commit_(commit) {
    link_.Execute("SET jit = off");
    number_ = std::to_string(model.number);
    texts_ = {std::to_string(model.drawer), std::to_string(model.cashRegister)};
    std::string sql =
        "WITH serie AS MATERIALIZED (SELECT CAST(nextval('vendas_numero_seq') AS integer) AS n),"
        " caixa AS (UPDATE caixas SET dinheiro = dinheiro + CAST($1 AS bigint)"
        " WHERE numero = CAST($2 AS integer) AND ativo = 1 AND aberto = 1),";
    const auto sale = ColumnsOf(link_, "vendas");
    sql += " venda AS (INSERT INTO vendas (numero, " + Listed(sale, "{n}", 0) + ") SELECT s.n, " +
           Listed(sale, "CAST({p} AS {t})", NextPlace()) + " FROM serie s RETURNING numero)";
    Keep("SELECT " + Listed(sale, "CAST({n} AS text)", 0) + " FROM vendas WHERE numero = $1");
    for (const std::string table : {"itens_de_venda", "lancamentos_de_caixa"}) {
      const auto columns = ColumnsOf(link_, table);
      sql += ", " + table + "_novos AS (INSERT INTO " + table + " (numero_da_venda, " +
             Listed(columns, "{n}", 0) + ") SELECT s.n, r.* FROM serie s, unnest(" +
             Listed(columns, "CAST({p} AS {t}[])", NextPlace()) + ") AS r)";
      Keep("SELECT " + Listed(columns, "CAST(array_agg({n} ORDER BY ctid) AS text)", 0) + " FROM " +
           table + " WHERE numero_da_venda = $1");
    }
    link_.Prepare("sale", sql + " SELECT numero FROM venda");
    for (const std::string& text : texts_) values_.push_back(text.c_str());
  }

  std::int64_t Write() {
    if (commit_ == Commit::kAsOurs) link_.Execute("BEGIN");
    const auto written = link_.Run("sale", values_);
    if (commit_ == Commit::kAsOurs) link_.Execute("COMMIT");
    const std::string_view text = PQgetvalue(written.get(), 0, 0);
    std::int64_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
  }

 private:
  int NextPlace() const { return static_cast<int>(texts_.size()) + 1; }
  /// What the model sale has is what the twin binds.
  void Keep(const std::string& select) {
    const auto found = link_.Execute(select, {number_.c_str()});
    for (int column = 0; column < PQnfields(found.get()); ++column) {
      texts_.emplace_back(PQgetvalue(found.get(), 0, column));
    }
  }

  RawPostgres link_;
  Commit commit_;
  std::string number_;
  std::vector<std::string> texts_;
  std::vector<const char*> values_;
};

}  // namespace

RawSale RawSaleOnPostgres(const std::string& connection, const ModelSale& model, Commit commit) {
  const auto twin = std::make_shared<Twin>(connection, model, commit);
  return [twin] { return twin->Write(); };
}

}  // namespace bench
