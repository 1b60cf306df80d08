#include "consent/Autorizar.h"

#include "consent/frmCaixaAutorizar.h"

namespace consent {
namespace {

/// Keeps the calling screen out of the supervisor's sight while it lives.
class ForaDeVista {
 public:
  ForaDeVista(platform::Form& formulario, Chamador chamador)
      : formulario_(formulario),
        esquerda_(formulario.Left()),
        largura_(formulario.Width()),
        altura_(formulario.Height()),
        chamador_(chamador) {
    // Further than any desktop is wide.
    constexpr std::int32_t kForaDaTela = 150'000;
    if (chamador == Chamador::kAfastaSe) formulario.Left = esquerda_ - kForaDaTela;
    if (chamador == Chamador::kDesaparece) Dimensionar(0, 0);
    if (chamador == Chamador::kRecolhe) Dimensionar(largura_, 0);
  }
  ~ForaDeVista() {
    if (chamador_ == Chamador::kAfastaSe) formulario_.Left = esquerda_;
    if (chamador_ != Chamador::kAfastaSe && chamador_ != Chamador::kFica) {
      Dimensionar(largura_, altura_);
    }
  }
  ForaDeVista(const ForaDeVista&) = delete;
  ForaDeVista& operator=(const ForaDeVista&) = delete;

 private:
  void Dimensionar(std::int32_t largura, std::int32_t altura) {
    formulario_.Width = largura;
    formulario_.Height = altura;
  }

  platform::Form& formulario_;
  std::int32_t esquerda_, largura_, altura_;
  Chamador chamador_;
};

}  // namespace

bool Autorizar(const Autorizacao& autorizacao) {
  frmCaixaAutorizar dialogo(autorizacao);
  std::int16_t resultado = frmCaixaAutorizar::kNaoAutorizado;
  dialogo.MontarExibirFormulario(resultado);
  return resultado == 0;
}

bool Autorizar(const Autorizacao& autorizacao, platform::Form& formulario, Chamador chamador) {
  const ForaDeVista foraDeVista(formulario, chamador);
  return Autorizar(autorizacao);
}

}  // namespace consent
