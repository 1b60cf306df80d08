#include <algorithm>
#include <charconv>
#include <stdexcept>
#include <string_view>
#include <system_error>

#include "clinic/Clinic.h"
#include "programs/Cases.h"
#include "programs/Program.h"
#include "support/Bench.h"
#include "support/TemporaryFolder.h"

namespace bench {
namespace {

/// What `caixa-vitrine --medir-inicio` tells when the sign-in is painted: seconds since the process
/// began.
double ToldIn(const std::string& output) {
  constexpr std::string_view kBefore = "entrada em ";
  double seconds = 0;
  const char* const from = output.data() + std::min(kBefore.size(), output.size());
  const auto [end, error] = std::from_chars(from, output.data() + output.size(), seconds);
  if (!output.starts_with(kBefore) || error != std::errc{} || *end != ' ') {
    throw std::runtime_error("caixa did not tell of its start: " + output);
  }
  return seconds;
}

void Measure(benchmark::State& state) {
  const support::TemporaryFolder folder;
  const Database clinic = NewClinic(services::Engine::kSqlite, "inicio");
  double whole = 0;
  long peak = 0;
  std::int64_t rounds = 0;
  Alone(state, [&] {
    const Run run = RunProgram({CAIXA_VITRINE, "--medir-inicio", "--banco", clinic.Address(),
                                "--pasta", folder.Path().string()},
                               "/dev/null", {"QT_QPA_PLATFORM=offscreen"});
    if (run.status != 0) throw std::runtime_error("caixa did not start");
    const double told = ToldIn(run.output);
    // What it tells of itself is held against the clock outside, which runs until it has ended.
    constexpr double kResolution = 0.02;
    if (told > run.seconds + kResolution) throw std::runtime_error("caixa tells a wrong time");
    whole += run.seconds;
    peak = std::max(peak, run.peakMemory);
    ++rounds;
    return told;
  });
  constexpr double kMega = 1024 * 1024;
  state.counters["peak_MB"] = static_cast<double>(peak) / kMega;
  state.counters["whole_run_us"] = whole * 1e6 / static_cast<double>(rounds);
}

}  // namespace

void AddStart() {
  constexpr int kRounds = 50;
  Add("start_to_sign_in", kRounds, Measure);
}

}  // namespace bench
