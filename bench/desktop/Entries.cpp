#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include "clinic/Opened.h"
#include "clinic/Past.h"
#include "desktop/Application.h"
#include "desktop/Cases.h"
#include "desktop/reports/Pdf.h"
#include "desktop/reports/QtMeasure.h"
#include "frame/servicos/ZOVA_N_RelFin.clsRelFin.h"
#include "register/drDeCaixas.h"
#include "support/Bench.h"
#include "support/TemporaryFolder.h"

namespace bench {
namespace {

/// From the question to the service to the file in its place.
double ReadAndWritten() {
  const support::TemporaryFolder folder;
  const std::string file = folder.File("lancamentos.pdf");
  std::string ofRegister;
  std::string ofPeriod =
      " LancamentosDeCaixas.DataDoLancamento Between #11/22/2026# And #11/22/2026# ";
  std::int32_t entries = 0;
  const double seconds = SecondsOf([&] {
    const auto reports = servicos::CriarServico<servicos::ZOVA_N_RelFin::clsRelFin>();
    Require(reports->SelecionarLancamentosDeCaixas(ofRegister, ofPeriod) == servicos::kSucesso,
            *reports);
    const base::RecordSetPtr rows = reports->ResultadoDaSelecaoEmRecordSet();
    entries = rows->RecordCount();
    registers::drDeCaixas report(registers::kLancamentosDeCaixas);
    report.Preencher(rows, "Clínica", "Período: 22/11/2026 à 22/11/2026");
    const desktop::reports::QtMeasure measure;
    desktop::reports::WritePdf(
        platform::Compose(report, measure, base::DateTime(2026, 11, 22, 14, 30),
                          platform::Telling::kPagesAlone),
        file);
  });
  const std::int64_t sales = std::min(kSalesOfADay, Chosen().rows);
  if (entries != sales * kTendersOfASale || !std::filesystem::exists(file)) {
    throw std::runtime_error("the report is not whole");
  }
  return seconds;
}

}  // namespace

void AddEntries() {
  constexpr int kRounds = 30;
  Add("report/entries_of_day", kRounds, [](benchmark::State& state) {
    NeedApplication();
    const Opened opened(ClinicWithPast(services::Engine::kSqlite));
    Alone(state, ReadAndWritten);
  });
}

}  // namespace bench
