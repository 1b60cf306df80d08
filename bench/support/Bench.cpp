#include "support/Bench.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <numeric>

namespace bench {

void Add(const std::string& name, int rounds, Body body) {
  const auto guarded = [body = std::move(body)](benchmark::State& state) {
    try {
      body(state);
    } catch (const std::exception& error) {
      state.SkipWithError(error.what());
    }
  };
  benchmark::RegisterBenchmark(name.c_str(), guarded)
      ->Iterations(Chosen().Rounds(rounds))
      ->Unit(benchmark::kMicrosecond)
      ->UseManualTime();
}

double Times::At(double part) const {
  if (seconds_.empty()) return 0;
  std::vector<double> sorted = seconds_;
  const auto last = static_cast<double>(sorted.size() - 1);
  const auto at = sorted.begin() + std::lround(last * part);
  std::ranges::nth_element(sorted, at);
  return *at;
}

double Times::Total() const {
  return std::accumulate(seconds_.begin(), seconds_.end(), 0.0);
}

void Tell(benchmark::State& state, const Times& times) {
  constexpr double kMicroseconds = 1e6;
  constexpr double kNearlyAll = 0.95;
  state.counters["us"] = times.Median() * kMicroseconds;
  state.counters["p95_us"] = times.At(kNearlyAll) * kMicroseconds;
}

}  // namespace bench
