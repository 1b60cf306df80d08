#include "support/Receipt.h"

#include <filesystem>
#include <memory>
#include <stdexcept>

#include "desktop/Application.h"
#include "desktop/Cases.h"
#include "desktop/reports/Pdf.h"
#include "desktop/reports/QtMeasure.h"
#include "support/Bench.h"
#include "support/TemporaryFolder.h"

namespace bench {
namespace {

constexpr int kLines = 500;

/// From the report, filled, to the file in its place.
double LaidOutAndWritten(const platform::Paper& paper) {
  const support::TemporaryFolder folder;
  const std::string file = folder.File("comprovante.pdf");
  const auto receipt = support::ReceiptOf(kLines, paper);
  std::size_t lines = 0;
  const double seconds = SecondsOf([&] {
    const desktop::reports::QtMeasure measure;
    const platform::ReportPages pages =
        platform::Compose(*receipt, measure, base::DateTime(2026, 11, 22, 14, 30));
    desktop::reports::WritePdf(pages, file);
    for (const platform::PrintedSection& section : pages.sections) {
      if (section.name == receipt->Detalhes.Name()) ++lines;
    }
  });
  if (lines != kLines || !std::filesystem::exists(file)) {
    throw std::runtime_error("the receipt is not whole");
  }
  return seconds;
}

}  // namespace

void AddReceipts() {
  constexpr int kRounds = 100;
  Add("receipt/a4", kRounds, [](benchmark::State& state) {
    NeedApplication();
    Alone(state, [] { return LaidOutAndWritten(platform::kA4Paper); });
  });
  Add("receipt/roll", kRounds, [](benchmark::State& state) {
    NeedApplication();
    Alone(state, [] { return LaidOutAndWritten(platform::kRoll80Paper); });
  });
}

}  // namespace bench
