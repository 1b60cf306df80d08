#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "clinic/Opened.h"
#include "services/Cases.h"
#include "services/Checkout.h"
#include "services/RawSale.h"
#include "services/banco/Preenchimento.h"
#include "services/banco/Session.h"
#include "services/venda/Conferencia.h"
#include "support/Bench.h"
#include "support/Crowd.h"

namespace bench {
namespace {

constexpr std::int32_t kRegisters = 4;

int Workstations() {
  constexpr int kUsual = 8;
  constexpr int kInAQuickRun = 3;
  return Chosen().quick ? kInAQuickRun : kUsual;
}

double SecondsOfASlice() {
  constexpr double kUsual = 5;
  constexpr double kInAQuickRun = 0.2;
  return Chosen().quick ? kInAQuickRun : kUsual;
}

/// What a workstation rings up in turn: two of them share a register, each customer comes to
/// several, and every fourth sale is on credit in part.
std::vector<Checkout> SalesAt(int workstation) {
  constexpr int kSales = 8;
  constexpr int kLines = 10;
  constexpr int kOnCredit = 4;
  constexpr std::int32_t kFirstCustomer = 2;
  constexpr std::int32_t kCustomers = 30;
  std::vector<Checkout> sales;
  sales.reserve(kSales);
  for (int i = 0; i < kSales; ++i) {
    sales.emplace_back(
        Checkout::Sale{.lines = kLines,
                       .cashRegister = workstation % kRegisters + 1,
                       .customer = kFirstCustomer + (workstation * 3 + i * 5) % kCustomers,
                       .onCredit = i % kOnCredit == 0});
  }
  return sales;
}

/// A clinic with its registers open. Whose credit has a limit can buy on it without an end.
Database Clinic(const std::string& name) {
  Database clinic = NewClinic(services::Engine::kPostgres, name);
  Opened opened(clinic);
  services::InTransaction(opened.Session(), [&](services::Transaction&) {
    services::InsertRows(opened.Session(), "caixas", "numero, local_de_atendimento",
                         {{kRegisters, "Internação"}});
    opened.Session().RunScript(
        "UPDATE clientes SET limite_de_credito = 1000000000000 WHERE limite_de_credito > 0");
  });
  for (std::int32_t number = 1; number <= kRegisters; ++number) OpenRegister(number);
  return clinic;
}

/// The sales of every workstation, for its twin to write again.
std::vector<std::vector<ModelSale>> Models(const Database& clinic) {
  const Opened opened(clinic);
  std::vector<std::vector<ModelSale>> models;
  for (int workstation = 0; workstation < Workstations(); ++workstation) {
    auto& own = models.emplace_back();
    for (const Checkout& sale : SalesAt(workstation)) {
      own.push_back({sale.Register(), sale.Drawer(), sale.CashRegister()});
    }
  }
  return models;
}

/// In its own process: a workstation with a connection of its own.
Crowd::Operation Workstation(const Database& clinic, int place) {
  struct Counter {
    Counter(const Database& database, int workstation)
        : opened(database, "BALCAO-" + std::to_string(workstation + 1)),
          sales(SalesAt(workstation)) {}
    Opened opened;
    std::vector<Checkout> sales;
    std::size_t turn = 0;
  };
  const auto counter = std::make_shared<Counter>(clinic, place);
  return [counter] { return counter->sales[counter->turn++ % counter->sales.size()].Register(); };
}

/// The sales that a crowd has registered, and how long it took.
class Tally {
 public:
  void Warm(Crowd& crowd) { Keep(crowd.Work(SecondsOfASlice() / 5)); }
  void Work(Crowd& crowd) {
    const Crowd::Slice slice = crowd.Work(SecondsOfASlice());
    Keep(slice);
    for (const Crowd::Done& sale : slice.done) times_.Add(sale.seconds);
    count_ += static_cast<double>(slice.done.size());
    seconds_ += slice.seconds;
  }

  double Rate() const { return count_ / seconds_; }
  const Times& OfASale() const { return times_; }

  /// Throws std::runtime_error unless the numbers told and those in the database are the same, each
  /// once and none left out, and the books balance.
  void Check(const Database& clinic) {
    Opened opened(clinic);
    std::ranges::sort(numbers_);
    for (std::size_t i = 1; i < numbers_.size(); ++i) {
      const std::int64_t expected = numbers_[i - 1] + 1;
      if (numbers_[i] == expected) continue;
      throw std::runtime_error("sale " + std::to_string(expected) + " is missing, or the one " +
                               "before it was told twice");
    }
    static const services::Statement standing("SELECT numero FROM vendas ORDER BY numero");
    std::vector<std::int64_t> found;
    opened.Session().Select(standing, {}, [&](const services::Row& row) {
      if (row.Integer(0) >= numbers_.front()) found.push_back(row.Integer(0));
    });
    if (found != numbers_) throw std::runtime_error("other sales stand than were told");
    const auto findings = services::Conferir(opened.Bank());
    if (!findings.empty()) throw std::runtime_error(findings.front());
  }

 private:
  void Keep(const Crowd::Slice& slice) {
    for (const Crowd::Done& sale : slice.done) numbers_.push_back(sale.number);
  }

  std::vector<std::int64_t> numbers_;
  Times times_;
  double count_ = 0;
  double seconds_ = 0;
};

void Measure(benchmark::State& state) {
  const Database clinic = Clinic("estacoes");
  const Database twins = Clinic("estacoes_gemeas");
  const auto models = Models(twins);
  Tally ours;
  Tally raw;
  {
    Crowd workstations(Workstations(), [&](int place) { return Workstation(clinic, place); });
    Crowd twinsOfThem(Workstations(), [&](int place) {
      return RawSaleOnPostgres(twins.target, models[static_cast<std::size_t>(place)],
                               Commit::kAsOurs);
    });
    ours.Warm(workstations);
    raw.Warm(twinsOfThem);
    bool oursFirst = true;
    for ([[maybe_unused]] auto round : state) {
      if (!oursFirst) raw.Work(twinsOfThem);
      ours.Work(workstations);
      if (oursFirst) raw.Work(twinsOfThem);
      oursFirst = !oursFirst;
      state.SetIterationTime(SecondsOfASlice());
    }
  }
  ours.Check(clinic);
  raw.Check(twins);
  Tell(state, ours.OfASale());
  state.counters["sales_per_s"] = ours.Rate();
  state.counters["raw_per_s"] = raw.Rate();
  state.counters["rate"] = ours.Rate() / raw.Rate();
}

}  // namespace

void AddWorkstations() {
  constexpr int kSlices = 6;
  Add("workstations/postgresql", kSlices, Measure);
}

}  // namespace bench
