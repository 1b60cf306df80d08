#include "frame/servicos/ZOVA_A_MsgErro.clsMensagem.h"
#include "siblings/Telas.h"
#include "siblings/frmMensagemDeErro.h"

namespace siblings {
namespace {

class clsMensagem final : public servicos::ZOVA_A_MsgErro::clsMensagem {
 public:
  void Exibir(std::int32_t numero, std::string_view descricao, std::string_view local,
              std::string_view nomeDaAplicacao) override {
    frmMensagemDeErro visor;
    visor.MontarExibirFormulario(numero, descricao, local, nomeDaAplicacao);
  }
};

}  // namespace

TelaNova NovaClsMensagem() {
  return std::make_unique<clsMensagem>();
}

}  // namespace siblings
