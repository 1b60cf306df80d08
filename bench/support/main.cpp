#include <unistd.h>

#include <cstdio>
#include <exception>
#include <vector>

#include "support/Bench.h"

namespace {

/// Prints as usual, and remembers whether any benchmark failed.
class Reporter final : public benchmark::ConsoleReporter {
 public:
  bool failed = false;

  Reporter() : ConsoleReporter(isatty(STDOUT_FILENO) != 0 ? OO_ColorTabular : OO_Tabular) {}

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) failed = failed || run.error_occurred;
    ConsoleReporter::ReportRuns(runs);
  }
};

}  // namespace

int main(int argc, char** argv) {
  try {
    bench::ReadOptions(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    bench::Register();
    Reporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return reporter.failed ? 1 : 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
