#include <stdexcept>

#include "clinic/Goods.h"
#include "counter/Cases.h"
#include "counter/Counter.h"
#include "support/Bench.h"

namespace bench {
namespace {

constexpr std::int32_t kLines = 500;

Database ClinicWithProducts() {
  Database clinic = NewClinic(services::Engine::kSqlite, "balcao");
  AddProducts(clinic, kLines + 1);
  return clinic;
}

void Fill(Counter& counter) {
  for (std::int32_t i = 0; i < kLines; ++i) {
    counter.Scan(BarcodeAt(i));
    counter.Add();
  }
  if (counter.Lines() != kLines) throw std::runtime_error("not the lines that were added");
}

/// The line that comes on top of the others, and then goes again: every round finds as many.
template <class Work>
double OneMore(Counter& counter, Work work) {
  const std::string before = counter.Screen().zvnumLiquidoAPagar.Text();
  const double seconds = SecondsOf(work);
  if (counter.Lines() != kLines + 1 || counter.Screen().zvnumLiquidoAPagar.Text() == before) {
    throw std::runtime_error("the line is not in the sale");
  }
  counter.TakeBack();
  if (counter.Screen().zvnumLiquidoAPagar.Text() != before) {
    throw std::runtime_error("the line is still in the sums");
  }
  return seconds;
}

}  // namespace

void AddLines() {
  constexpr int kRounds = 1'000;
  Add("line/add", kRounds, [](benchmark::State& state) {
    Counter counter(ClinicWithProducts());
    Fill(counter);
    Alone(state, [&] {
      counter.Scan(BarcodeAt(kLines));
      return OneMore(counter, [&] { counter.Add(); });
    });
  });
  Add("line/scan_and_add", kRounds, [](benchmark::State& state) {
    Counter counter(ClinicWithProducts());
    Fill(counter);
    Alone(state, [&] {
      return OneMore(counter, [&] {
        counter.Scan(BarcodeAt(kLines));
        counter.Add();
      });
    });
  });
}

}  // namespace bench
