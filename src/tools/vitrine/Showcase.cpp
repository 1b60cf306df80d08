#include "tools/vitrine/Showcase.h"

#include <QApplication>
#include <cstdio>
#include <filesystem>
#include <iterator>
#include <stdexcept>
#include <utility>

#include "base/DateTime.h"
#include "services/Abertura.h"
#include "services/Banco.h"
#include "services/contrato/AjustesDaEmpresa.h"
#include "services/venda/FichaDaVenda.h"
#include "tools/vitrine/Process.h"
#include "tools/vitrine/Scripts.h"

namespace vitrine {
namespace {

namespace fs = std::filesystem;

constexpr const char* kDatabase = "demonstracao.db";
constexpr const char* kReceipt = "comprovante.pdf";

/// What a script shows of the papers of a sale; it ends, whether a coupon is answered or not.
constexpr std::pair<const char*, const char*> kShownPapers[] = {
    {"CodigoDoDocumentoComEmissaoPermitida", "11"},
    {"ImprimirComprovanteDeCFeSAT", "Sim"},
    {"SolicitarConfirmacaoParaImprimirComprovanteDeCFeSAT", "Sim"},
    {"ConfirmarAVendaNoCaixaMesmoComFalhaNaEmissaoDoCFeSAT", "Sim"},
    {"ImprimirComprovanteDePagamento", "Sim"},
    {"VisualizarImpressaoDoComprovanteDePagamento", "Sim"},
    {"ImprimirNotaPromissoria", "Sim"},
    {"SolicitarConfirmacaoParaImprimirNotaPromissoria", "Sim"},
    {"VisualizarImpressaoDaNotaPromissoria", "Sim"},
};

void Tell(const std::string& line) {
  std::printf("%s\n", line.c_str());
  std::fflush(stdout);
}

}  // namespace

Showcase::Showcase(const Options& options) : Application(options.host), options_(options) {
  // Portraits are compared with those of another day.
  if (options.mode == Options::Mode::kPortraits) Desktop().StopClock({2026, 11, 22, 14, 30});
}

int Showcase::Run() {
  const int status = Application::Run();
  if (failed_) return 1;
  if (options_.mode == Options::Mode::kDemonstration) TellSale();
  return status;
}

void Showcase::TellFailure(const std::string& sentence) {
  std::fprintf(stderr, "%s\n", sentence.c_str());
}

std::string Showcase::DatabaseAddress() {
  const fs::path file = fs::path(host::Made(options_.pictures)) / kDatabase;
  std::error_code ignored;
  for (const char* suffix : {"", "-wal", "-shm"}) fs::remove(file.string() + suffix, ignored);
  std::string address = "sqlite:" + file.string();
  services::CriarBanco(address);
  clinic_ = services::AbrirBanco(address, Desktop(), Desktop().ComputerName());
  users_ = services::CriarDemonstracao(*clinic_);
  services::AlterarEmpresa(*clinic_, {std::begin(kShownPapers), std::end(kShownPapers)});
  return address;
}

/// What is printed and saved is kept beside the pictures.
desktop::reports::Printing Showcase::PrintingOn(const platform::Paper& paper) const {
  const fs::path folder = fs::absolute(options_.pictures);
  return {.paper = paper,
          .printer = "pdf:" + folder.string(),
          .saveAs = [folder](const std::string&) { return (folder / kReceipt).string(); }};
}

/// Pictures are all of one size.
void Showcase::ShowWindow() {
  Window().show();
}

void Showcase::Begin() {
  const bool sale = options_.mode == Options::Mode::kDemonstration;
  player_ = std::make_unique<Player>(Desktop(), Window(),
                                     sale ? scripts::Demonstration() : scripts::Portraits());
  player_->folder = options_.pictures;
  player_->numbered = sale;
  player_->words = {{"pasta", options_.pictures}};
  constexpr const char* kRoles[] = {"administrador", "supervisor", "operador"};
  for (std::size_t i = 0; i < std::size(kRoles) && i < users_.size(); ++i) {
    player_->words[kRoles[i]] = users_[i].nome;
    player_->words[std::string("senha do ") + kRoles[i]] = users_[i].senha;
  }
  player_->words["vencimento"] =
      base::Format(Desktop().Now().PlusMonths(1), base::DateMask::kDayMonthYear);
  player_->tell = Tell;
  player_->usePaper = [this](const std::string& name) {
    PrintOn(name == "Bobina80" ? platform::kRoll80Paper : platform::kA4Paper);
  };
  player_->onEnd = [this](bool done, const std::string& why) {
    failed_ = !done;
    if (failed_) std::fprintf(stderr, "A demonstração parou: %s.\n", why.c_str());
    Window().close();
  };
  player_->Start();
}

/// What became of the demonstration's sale, as it stands in the database.
void Showcase::TellSale() const {
  const auto sale = services::LerFichaDaVenda(*clinic_, 1);
  if (!sale) throw std::runtime_error("A demonstração terminou sem registrar a venda.");
  const std::string& key = sale->venda.chaveSat;
  const std::string& folder = options_.pictures;
  Tell(key.empty() ? "A venda foi registrada sem cupom: nenhum aplicativo fiscal o emitiu. Um "
                     "simulado se abre antes, com: integrador-simulado " +
                         folder + "/cfe"
                   : "A venda foi registrada com o cupom de chave " + key + ".");
  Tell("Para conferir: caixa-banco sqlite:" + folder + "/" + kDatabase + " venda 1");
  Tell("O comprovante está em " + folder + "/" + kReceipt + ", os retratos das telas em " + folder +
       ".");
}

Watched::Watched(const Options& options) : Application(options.host), options_(options) {}

void Watched::Begin() {
  if (!options_.screenFile.empty()) screen_.emplace(Desktop(), options_.screenFile);
  if (options_.mode == Options::Mode::kMeasure) Measure();
}

/// Tells how long it took to bring the sign-in up, and how much memory, once it is painted.
void Watched::Measure() {
  QTimer::singleShot(0, &Window(), [this] {
    QCoreApplication::processEvents();
    Window().repaint();
    std::printf("entrada em %.2f s, %ld MB\n", process::SecondsSinceStart(),
                process::PeakMemory() / 1024 / 1024);
    Window().close();
  });
}

}  // namespace vitrine
