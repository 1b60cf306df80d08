#pragma once

#include <benchmark/benchmark.h>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "support/Options.h"

namespace bench {

/// What a binary has to measure: it calls Add for each benchmark. Every binary defines it.
void Register();

using Body = std::function<void(benchmark::State&)>;

/// A benchmark of so many rounds, each of which tells its own time. An exception out of `body`
/// fails the benchmark and, in the end, the binary.
void Add(const std::string& name, int rounds, Body body);

template <class Work>
double SecondsOf(Work work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// The times of one operation, done many times.
class Times {
 public:
  void Add(double seconds) { seconds_.push_back(seconds); }
  double Median() const { return At(0.5); }
  double Total() const;
  /// The time that so great a part of the operations stayed within; 0 to 1.
  double At(double part) const;

 private:
  std::vector<double> seconds_;
};

/// Counters of the benchmark, in microseconds: the median, and what 95 of 100 stayed within.
void Tell(benchmark::State& state, const Times& times);

/// Runs an operation once a round. It does what has to be done before, and returns the seconds of
/// what counts.
template <class Operation>
void Alone(benchmark::State& state, Operation operation) {
  Times times;
  for ([[maybe_unused]] auto round : state) {
    const double seconds = operation();
    times.Add(seconds);
    state.SetIterationTime(seconds);
  }
  Tell(state, times);
}

/// Runs two ways of doing the same in turn, so that whatever else the machine does meets both
/// alike, and tells the times of both: "ratio" is how many times as long ours takes as its raw
/// twin, median by median, "rate" how many operations ours does, all told, while the twin does one.
template <class Ours, class Raw>
void InTurn(benchmark::State& state, Ours ours, Raw raw) {
  Times times;
  Times twins;
  bool oursFirst = true;
  for ([[maybe_unused]] auto round : state) {
    if (!oursFirst) twins.Add(raw());
    const double seconds = ours();
    if (oursFirst) twins.Add(raw());
    // Whoever is second finds the caches warm.
    oursFirst = !oursFirst;
    times.Add(seconds);
    state.SetIterationTime(seconds);
  }
  Tell(state, times);
  constexpr double kMicroseconds = 1e6;
  state.counters["raw_us"] = twins.Median() * kMicroseconds;
  state.counters["ratio"] = times.Median() / twins.Median();
  state.counters["rate"] = twins.Total() / times.Total();
}

}  // namespace bench
