#include "tools/roteiro/DatabaseServices.h"

#include <memory>
#include <stdexcept>

#include "frame/servicos/ZOVA_A_MsgErro.clsMensagem.h"
#include "platform/Desktop.h"
#include "tools/roteiro/StandIns.h"
#ifdef CAIXA_SERVICES
#include "services/Banco.h"
#include "services/RegistrarServicos.h"
#endif
#ifdef CAIXA_SIBLINGS
#include "siblings/RegistrarTelas.h"
#endif

namespace roteiro {
namespace {

#if defined(CAIXA_SERVICES) && defined(CAIXA_SIBLINGS)
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

void UseSuite(StandIns& standIns) {
  siblings::RegistrarTelas();
  std::shared_ptr<clsMensagem> viewer = servicos::CriarServico<clsMensagem>();
  servicos::Registrar(clsMensagem::kIdentificador, [&standIns, viewer] {
    return std::make_unique<ToldViewer>(standIns, viewer);
  });
  // Of the other screens the suite has only a sentence that they are not there yet; a script can
  // do more with a stand-in.
  RegisterScreenStandIns(standIns);
}
#endif

}  // namespace

#if defined(CAIXA_SERVICES) && defined(CAIXA_SIBLINGS)
void UseDatabase(const std::string& database, StandIns& standIns, platform::Desktop& desktop) {
  services::RegistrarServicos(services::AbrirBanco(database, desktop, desktop.ComputerName()));
  UseSuite(standIns);
}
#else
void UseDatabase(const std::string&, StandIns&, platform::Desktop&) {
  throw std::runtime_error("this build has no database services; use --services stub");
}
#endif

}  // namespace roteiro
