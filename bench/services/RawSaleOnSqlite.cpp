#include <memory>
#include <random>
#include <string>
#include <vector>

#include "services/RawSale.h"
#include "support/RawSqlite.h"

namespace bench {
namespace {

struct FreeValue {
  void operator()(sqlite3_value* value) const { sqlite3_value_free(value); }
};
using Value = std::unique_ptr<sqlite3_value, FreeValue>;
using Row = std::vector<Value>;

/// The rows that a sale has in a table, and the statement that writes one of them. The first place
/// is for the sale's number, where the table is not that of the sales, and the next for its
/// operation, where the table has one: no two sales have the same.
class Rows {
 public:
  Rows(RawSqlite& database, const std::string& table, std::int64_t sale) {
    const bool isSale = table == "vendas";
    RawStatement select(database, "SELECT * FROM " + table + " WHERE " +
                                      (isSale ? "numero" : "numero_da_venda") + " = ?1");
    sqlite3_bind_int64(select, 1, sale);
    std::string columns = isSale ? "" : "numero_da_venda";
    std::string places = isSale ? "" : "?";
    std::vector<int> kept;
    for (int i = 0; i < sqlite3_column_count(select); ++i) {
      const std::string name = sqlite3_column_name(select, i);
      if (name == "numero" || name == "numero_da_venda") continue;
      if (name == "operacao") {
        hasOperation_ = true;
        continue;
      }
      kept.push_back(i);
      columns += (columns.empty() ? "" : ", ") + name;
      places += places.empty() ? "?" : ", ?";
    }
    if (hasOperation_) {
      columns += ", operacao";
      places += ", ?";
    }
    while (sqlite3_step(select) == SQLITE_ROW) {
      Row& row = rows_.emplace_back();
      for (const int i : kept) {
        row.emplace_back(sqlite3_value_dup(sqlite3_column_value(select, i)));
      }
    }
    insert_ = std::make_unique<RawStatement>(
        database, "INSERT INTO " + table + " (" + columns + ") VALUES (" + places + ")");
    firstPlace_ = isSale ? 1 : 2;
  }

  void WriteUnder(std::int64_t sale, std::int64_t operation) const {
    for (const Row& row : rows_) {
      if (firstPlace_ > 1) sqlite3_bind_int64(*insert_, 1, sale);
      int place = firstPlace_;
      for (const Value& value : row) sqlite3_bind_value(*insert_, place++, value.get());
      if (hasOperation_) sqlite3_bind_int64(*insert_, place, operation);
      insert_->Run();
    }
  }

 private:
  std::vector<Row> rows_;
  std::unique_ptr<RawStatement> insert_;
  int firstPlace_ = 1;
  bool hasOperation_ = false;
};

struct Twin {
  Twin(const std::string& file, const ModelSale& model)
      : database(file), sale(database, "vendas", model.number), number(model.number) {
    // Of the other tables a sale in cash and by card has no rows.
    for (const char* table : {"itens_de_venda", "lancamentos_de_caixa"}) {
      parts.emplace_back(database, table, model.number);
    }
    sqlite3_bind_int64(money, 1, model.cashRegister);
    sqlite3_bind_int64(money, 2, model.drawer);
  }

  std::int64_t Write() {
    begin.Run();
    money.Run();
    const auto operation = static_cast<std::int64_t>(draw());
    sale.WriteUnder(0, operation);
    number = sqlite3_last_insert_rowid(database.Handle());
    for (const Rows& part : parts) part.WriteUnder(number, operation);
    commit.Run();
    return number;
  }

  RawSqlite database;
  RawStatement begin{database, "BEGIN IMMEDIATE"};
  RawStatement commit{database, "COMMIT"};
  RawStatement money{database,
                     "UPDATE caixas SET dinheiro = dinheiro + ?2"
                     " WHERE numero = ?1 AND ativo = 1 AND aberto = 1"};
  Rows sale;
  std::vector<Rows> parts;
  std::int64_t number;
  std::mt19937_64 draw{std::random_device()()};
};

}  // namespace

RawSale RawSaleOnSqlite(const std::string& file, const ModelSale& model) {
  const auto twin = std::make_shared<Twin>(file, model);
  return [twin] { return twin->Write(); };
}

}  // namespace bench
