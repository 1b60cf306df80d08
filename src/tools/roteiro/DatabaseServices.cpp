#include "tools/roteiro/DatabaseServices.h"

#include <deque>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <utility>

#include "frame/Valores.h"
#include "frame/modMensagemDeErro.h"
#include "frame/servicos/ZOVA_A_MsgErro.clsMensagem.h"
#include "platform/Desktop.h"
#include "services/Abertura.h"
#include "services/Banco.h"
#include "services/Estacao.h"
#include "services/contrato/RegistrarServicos.h"
#include "services/troca/ExportacaoFiscal.h"
#include "siblings/RegistrarTelas.h"
#include "tools/roteiro/Options.h"
#include "tools/roteiro/StandIns.h"

namespace roteiro {
namespace {

using servicos::ZOVA_A_MsgErro::clsMensagem;

/// The suite's error viewer, which keeps the operator; what it shows is told as an event as well.
class ToldViewer final : public clsMensagem {
 public:
  ToldViewer(StandIns& tells, std::shared_ptr<clsMensagem> viewer)
      : tells_(tells), viewer_(std::move(viewer)) {}

  void Exibir(std::int32_t number, std::string_view description, std::string_view location,
              std::string_view application) override {
    tells_.TellError(number, description, location);
    viewer_->Exibir(number, description, location, application);
  }

 private:
  StandIns& tells_;
  std::shared_ptr<clsMensagem> viewer_;
};

/// The one of our own is made; one that was asked for may be missing, which an export tells.
std::string ExchangeFolder(const Options& options, platform::Desktop& desktop) {
  if (!options.exchange.empty()) return options.exchange;
  const std::filesystem::path folder = std::filesystem::path(desktop.ModuleFolder()) / "cfe";
  platform::files::MakeFolder(folder.string());
  return folder.string();
}

void UseSuite(StandIns& standIns) {
  siblings::RegistrarTelas();
  std::shared_ptr<clsMensagem> viewer = servicos::CriarServico<clsMensagem>();
  servicos::Registrar(clsMensagem::kIdentificador, [&standIns, viewer] {
    return std::make_unique<ToldViewer>(standIns, viewer);
  });
}

/// Looks once more at what waits for the database when the host goes.
class LastCare {
 public:
  explicit LastCare(std::shared_ptr<services::Banco> bank) : bank_(std::move(bank)) {}
  ~LastCare() { bank_->CuidarPelaUltimaVez(); }
  LastCare(const LastCare&) = delete;
  LastCare& operator=(const LastCare&) = delete;

 private:
  std::shared_ptr<services::Banco> bank_;
};

std::function<void()> CareOf(const std::shared_ptr<services::Banco>& bank,
                             platform::Desktop& desktop) {
  const auto news = std::make_shared<std::deque<std::string>>();
  bank->AoAvisar([news](const std::string& sentence) { news->push_back(sentence); });
  return [bank, news, &desktop, last = std::make_shared<LastCare>(bank)] {
    bank->CuidarDoPendente();
    while (!news->empty()) {
      const std::string sentence = news->front();
      news->pop_front();
      desktop.Ask({sentence, frame::valores().NomeDaAplicacao, platform::Icon::kInformation,
                   platform::Buttons::kOk, platform::Answer::kOk});
    }
  };
}

}  // namespace

std::function<void()> UseDatabase(const Options& options, StandIns& standIns,
                                  platform::Desktop& desktop) {
  const auto bank = services::AbrirBanco(options.database, desktop, desktop.ComputerName(),
                                         services::MarcaDaEstacao(desktop.ModuleFolder()));
  bank->LembrarRegistros(desktop.ModuleFolder(), options.database);
  services::RegistrarServicos(bank);
  const std::string exchange = ExchangeFolder(options, desktop);
  services::RegistrarExportacaoFiscal(bank, exchange, frame::ExibirRelato);
  services::RetomarCupons(bank, exchange);
  platform::files::InsteadOfDeleting(services::ArquivoDaTroca(*bank, exchange));
  UseSuite(standIns);
  return CareOf(bank, desktop);
}

}  // namespace roteiro
