#include "frame/frmMensagem.h"

#include "base/Text.h"
#include "frame/Procedimento.h"
#include "frame/modArredondarCantosDoObjeto.h"
#include "frame/modPausar.h"
#include "platform/Layout.h"

namespace frame {

frmMensagem::frmMensagem() : Form("frmMensagem") {
  Load = [this] { Form_Load(); };
  Resize = [this] { Form_Resize(); };
  UnloadEvent = [this](bool&) { Form_Unload(); };
  Arrange(
      {.size = {4800, 1200},
       .places = {{lblMensagem,
                   {0, 450, 4020, 300},
                   "Aguarde, acessando o sistema",
                   platform::Look::kWait},
                  {lshpObj, {0, 0, 4800, 1200}, "", platform::Look::kNormal, platform::kHoldAll}}});
}

void frmMensagem::MontarExibirFormulario(std::int16_t& falha) {
  falha = 1;
  Procedimento(*this, "MontarExibirFormulario", [&](Ponto& ponto) {
    constexpr std::int32_t kMargens = 780;
    constexpr std::int32_t kLarguraDeUmaLetra = 110;
    lblMensagem.Width =
        kLarguraDeUmaLetra * static_cast<std::int32_t>(base::Length(lblMensagem.Caption()));
    Width = lblMensagem.Width() + kMargens;
    ponto = 2;
    Show();
    ponto = 3;
    Pausar(1);
    falha = 0;
  });
}

void frmMensagem::Pausar(double segundos) {
  frame::Pausar(segundos);
}

void frmMensagem::Form_Load() {
  Procedimento(*this, "Form_Load", [&](Ponto&) { EmoldurarFormulario(*this, lshpObj); });
}

void frmMensagem::Form_Resize() {
  if (estender_) {
    lblMensagem.Left = 0;
    lblMensagem.Width = Width();
  }
  estender_ = !estender_;
}

void frmMensagem::Form_Unload() {
  estender_ = true;
}

}  // namespace frame
