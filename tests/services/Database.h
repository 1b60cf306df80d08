#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "base/Clock.h"
#include "base/GradeLida.h"
#include "base/Numbers.h"
#include "base/Record.h"
#include "frame/servicos/Codigos.h"
#include "frame/servicos/LinhaDeVenda.h"
#include "frame/servicos/ZOVA_N_Caixa.clsCaixa.h"
#include "services/Banco.h"
#include "services/banco/Preenchimento.h"
#include "services/banco/Session.h"
#include "services/contrato/RegistrarServicos.h"
#include "support/TemporaryFolder.h"

namespace services {

inline base::Currency operator""_brl(unsigned long long reais) {
  return base::Currency::FromTenThousandths(static_cast<std::int64_t>(reais) *
                                            base::Currency::kScale);
}
inline base::Currency Brl(std::string_view text) {
  return base::ToCurrency(text);
}

/// A clock that stands at 22 November 2026, 14:30, unless it is moved.
class StoppedClock : public base::Clock {
 public:
  base::DateTime Now() const override { return now; }
  double Elapsed() const override { return elapsed; }

  double elapsed = 0;
  base::DateTime now{2026, 11, 22, 14, 30, 0};
};

/// The session record as a host hands it over.
class SessionRecord : public base::Record {
 public:
  explicit SessionRecord(std::string user, bool administrator = false)
      : user_(std::move(user)), administrator_(administrator) {}
  base::Value Field(std::string_view name) const override {
    if (name == "NomeDeUsuario") return user_;
    // Who is one may do everything.
    if (name == "Administrador" || name.starts_with("Permissao")) return administrator_;
    throw base::RuntimeError(base::Fault::kIndexOutOfRange);
  }

 private:
  std::string user_;
  bool administrator_;
};

/// A grid of texts under a header row, as a screen holds it.
class Grid : public base::GradeLida {
 public:
  explicit Grid(std::vector<std::vector<std::string>> rows) : rows_(std::move(rows)) {
    rows_.insert(rows_.begin(), std::vector<std::string>(rows_.empty() ? servicos::linha::kColunas
                                                                       : rows_[0].size()));
  }
  std::int32_t Rows() const override { return static_cast<std::int32_t>(rows_.size()); }
  std::int32_t Cols() const override { return static_cast<std::int32_t>(rows_[0].size()); }
  const std::string& TextMatrix(std::int32_t row, std::int32_t col) const override {
    return rows_.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(col));
  }
  /// Another text in a cell.
  Grid With(std::size_t row, std::size_t col, std::string text) const {
    Grid other = *this;
    other.rows_[row][col] = std::move(text);
    return other;
  }

 private:
  std::vector<std::vector<std::string>> rows_;
};

/// The cells of a line of one unit without discount, as the counter writes them.
std::vector<std::string> ProductLine(const std::string& total);
std::vector<std::string> ServiceLine(const std::string& total);
/// A line that came from the open pre-sale with this number.
std::vector<std::string> PreSaleLine(const std::string& total, int number);
/// The cells of a tender.
std::vector<std::string> Tender(const std::string& method, const std::string& value,
                                const std::string& dueDate = "__/__/____");

/// Everything of a sale that a test does not vary.
struct Sale {
  Grid lines{{ProductLine("100,00")}};
  Grid tenders{{Tender("1-Dinheiro", "100,00")}};
  base::Currency net = 100_brl;
  base::Currency change{};      ///< As the checkout reports it: negative or 0.
  base::Currency creditKept{};  ///< For the customer.
  std::int32_t registerNumber = 1;
  std::string customer = "5";
  std::string note = "Cliente: 5-Dudu";
  std::string key{};
};

/// A service of the register with a sale's inputs set, as the checkout does it, and the grids that
/// it will read.
class NewSale {
 public:
  explicit NewSale(Sale sale);
  servicos::ZOVA_N_Caixa::clsCaixa* operator->() const { return service_.get(); }

 private:
  Sale sale_;
  std::unique_ptr<servicos::ZOVA_N_Caixa::clsCaixa> service_;
};

/// A new empty database of an engine: its address. The files and the server go away with the
/// process.
std::string NewDatabase(Engine engine);
std::string Name(const testing::TestParamInfo<Engine>& info);

/// A test over a new database of either engine: an open register 1, a closed 2, a deactivated 3,
/// and customer 5 with 50,00 of credit.
class OverDatabase : public testing::TestWithParam<Engine> {
 protected:
  void SetUp() override;
  void TearDown() override;

  Session& session() { return banco_->Sessao(); }
  /// The first column of the first row, as a text; empty when there is no row.
  std::string Read(const std::string& sql);
  std::int64_t Count(const std::string& table);
  void Write(const std::string& sql) { session().RunScript(sql); }
  void Fill(const std::string& table, const std::string& columns, const std::vector<Params>& rows) {
    InTransaction(session(), [&](Transaction&) { InsertRows(session(), table, columns, rows); });
  }
  /// Another connection to the same database, as another computer has.
  std::shared_ptr<Banco> Another(const std::string& computer, const std::string& mark = {});
  /// Starts a process that does `work` over services of its own and ends with its answer. This
  /// one's connection is closed meanwhile, for none may be carried into another process.
  pid_t Start(const std::string& computer, const std::function<int()>& work,
              const std::string& mark = {});
  /// Waits for a process; its answer, or -1 when it was killed.
  static int EndOf(pid_t process);

  /// The books hold together.
  void ExpectBooksBalance();

  /// Fills the new database at `address_` and opens it.
  void Prepare();
  /// Opens the database and puts its services in place.
  void Open();

  std::string address_;
  StoppedClock clock_;
  std::shared_ptr<Banco> banco_;
};

#define OVER_BOTH_ENGINES(Suite) \
  INSTANTIATE_TEST_SUITE_P(Both, Suite, testing::Values(Engine::kSqlite, Engine::kPostgres), Name)

}  // namespace services
