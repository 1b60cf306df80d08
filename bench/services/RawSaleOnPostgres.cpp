#include <charconv>
#include <map>
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

/// All but those that are new with each sale.
std::vector<Column> ColumnsOf(RawPostgres& link, const std::string& table) {
  const auto found = link.Execute(
      "SELECT attname, format_type(atttypid, atttypmod) FROM pg_attribute"
      " WHERE attrelid = CAST($1 AS regclass) AND attnum > 0 AND NOT attisdropped"
      " AND attname NOT IN ('numero', 'numero_da_venda', 'operacao') ORDER BY attnum",
      {table.c_str()});
  std::vector<Column> columns;
  columns.reserve(static_cast<std::size_t>(PQntuples(found.get())));
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

/// One statement that writes everything of a sale, and what it binds.
class Model {
 public:
  Model(RawPostgres& link, const ModelSale& model)
      : number_(std::to_string(model.number)),
        texts_({std::to_string(model.drawer), std::to_string(model.cashRegister)}) {
    // The register's row first, as ours: from then on other sales of that register wait.
    sql_ =
        "WITH caixa AS (UPDATE caixas SET dinheiro = dinheiro + CAST($1 AS bigint)"
        " WHERE numero = CAST($2 AS integer) AND ativo = 1 AND aberto = 1 RETURNING numero),"
        // No two sales have the same operation, and it is drawn, as ours is.
        " serie AS MATERIALIZED (SELECT CAST(nextval('vendas_numero_seq') AS integer) AS n,"
        " CAST(random() * 9e18 AS bigint) AS o WHERE EXISTS (SELECT 1 FROM caixa)),";
    const auto sale = ColumnsOf(link, "vendas");
    sql_ += " venda AS (INSERT INTO vendas (numero, operacao, " + Listed(sale, "{n}", 0) +
            ") SELECT s.n, s.o, " + Listed(sale, "CAST({p} AS {t})", NextPlace()) +
            " FROM serie s RETURNING numero)";
    Keep(link, "SELECT " + Listed(sale, "CAST({n} AS text)", 0) + " FROM vendas WHERE numero = $1");
    for (const char* table : {"itens_de_venda", "lancamentos_de_caixa", "contas_a_receber"}) {
      WriteRowsOf(link, table);
    }
    sql_ += " SELECT numero FROM venda";
  }

  const std::string& Sql() const { return sql_; }
  std::vector<const char*> Values() const {
    std::vector<const char*> values;
    values.reserve(texts_.size());
    for (const std::string& text : texts_) values.push_back(text.c_str());
    return values;
  }

 private:
  int NextPlace() const { return static_cast<int>(texts_.size()) + 1; }
  /// Where the model sale has any.
  void WriteRowsOf(RawPostgres& link, const std::string& table) {
    const std::string ofSale = " FROM " + table + " WHERE numero_da_venda = $1";
    if (PQntuples(link.Execute("SELECT 1" + ofSale, {number_.c_str()}).get()) == 0) return;
    const auto columns = ColumnsOf(link, table);
    const bool hasOperation = table == "lancamentos_de_caixa";
    sql_ += ", " + table + "_novos AS (INSERT INTO " + table + " (numero_da_venda, " +
            (hasOperation ? "operacao, " : "") + Listed(columns, "{n}", 0) + ") SELECT s.n, " +
            (hasOperation ? "s.o, " : "") + "r.* FROM serie s, unnest(" +
            Listed(columns, "CAST({p} AS {t}[])", NextPlace()) + ") AS r)";
    Keep(link,
         "SELECT " + Listed(columns, "CAST(array_agg({n} ORDER BY ctid) AS text)", 0) + ofSale);
  }
  /// What the model sale has is what the twin binds.
  void Keep(RawPostgres& link, const std::string& select) {
    const auto found = link.Execute(select, {number_.c_str()});
    for (int column = 0; column < PQnfields(found.get()); ++column) {
      texts_.emplace_back(PQgetvalue(found.get(), 0, column));
    }
  }

  std::string number_;
  std::string sql_;
  std::vector<std::string> texts_;
};

class Twin {
 public:
  Twin(const std::string& connection, const std::vector<ModelSale>& models, Commit commit)
      : link_(connection), commit_(commit) {
    link_.Execute("SET jit = off");
    models_.reserve(models.size());
    for (const ModelSale& each : models) {
      const Model& model = models_.emplace_back(link_, each);
      // Sales with rows in the same tables have their statement in common.
      const auto [prepared, isNew] = names_.try_emplace(model.Sql(), Name(names_.size()));
      if (isNew) link_.Prepare(prepared->second.c_str(), model.Sql());
      runs_.push_back({prepared->second.c_str(), model.Values()});
    }
  }

  std::int64_t Write() {
    const Run& next = runs_[turn_++ % runs_.size()];
    if (commit_ == Commit::kAsOurs) link_.Execute("BEGIN");
    const auto written = link_.Run(next.statement, next.values);
    if (commit_ == Commit::kAsOurs) link_.Execute("COMMIT");
    const std::string_view text = PQgetvalue(written.get(), 0, 0);
    std::int64_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
  }

 private:
  struct Run {
    const char* statement;
    std::vector<const char*> values;
  };

  static std::string Name(std::size_t place) { return "sale" + std::to_string(place); }

  RawPostgres link_;
  Commit commit_;
  std::vector<Model> models_;                 ///< Never grows past its first size.
  std::map<std::string, std::string> names_;  ///< Of what is prepared, by its text.
  std::vector<Run> runs_;
  std::size_t turn_ = 0;
};

}  // namespace

RawSale RawSaleOnPostgres(const std::string& connection, const std::vector<ModelSale>& models,
                          Commit commit) {
  const auto twin = std::make_shared<Twin>(connection, models, commit);
  return [twin] { return twin->Write(); };
}

}  // namespace bench
