#include "frame/PainelDeMensagem.h"

#include "base/RuntimeError.h"
#include "frame/Valores.h"
#include "frame/modArredondarCantosDoObjeto.h"
#include "frame/modFundoEscuro.h"
#include "frame/modPausar.h"

namespace frame {
namespace {

constexpr std::uint8_t kRaioDoPainel = 30;
constexpr double kSegundosDoPainel = 1;

}  // namespace

void PainelDeMensagem::ExibirOcultar(bool exibir, bool somenteCursor) {
  if (picMensagem_.Visible() == exibir) return;
  if (!exibir) {
    RemoverFundoEscuro(valores().HandleDaJanelaPrincipal);
    picMensagem_.Visible = false;
    formulario_.MousePointer = platform::kDefaultPointer;
    formulario_.Refresh();
    return;
  }
  // Until the panel counts as shown nobody else would clear the window.
  FundoEscuro fundo(kAtrasDeEspera);
  if (somenteCursor) {
    formulario_.MousePointer = platform::kHourglassPointer;
    // Without a size it is not seen, but it counts as shown, so that the end is the same.
    picMensagem_.Width = 0;
    picMensagem_.Height = 0;
    picMensagem_.Visible = true;
    fundo.Manter();
    return;
  }
  formulario_.MousePointer = platform::kDefaultPointer;
  ArredondarCantosDoObjeto(picMensagem_, kRaioDoPainel);
  // The size comes before the place: after an hourglass the panel has none to be centred by.
  picMensagem_.Height = valores().AlturaOriginalDopicMensagem;
  picMensagem_.Width = valores().LarguraOriginalDopicMensagem;
  Centralizar();
  picMensagem_.Visible = true;
  fundo.Manter();
  Pausar(kSegundosDoPainel);
}

void PainelDeMensagem::Centralizar() {
  picMensagem_.BringToFront();
  picMensagem_.Top = formulario_.Height() / 2 - picMensagem_.Height() * 3 / 2;
  picMensagem_.Left = formulario_.Width() / 2 - picMensagem_.Width() / 2;
}

Espera::Espera(PainelDeMensagem& painel, bool somenteCursor)
    : painel_(painel), somenteCursor_(somenteCursor) {
  Mostrar();
}

Espera::~Espera() {
  try {
    Ocultar();
  } catch (const base::RuntimeError&) {
    // The error that ended the routine is the one to report.
  }
}

void Espera::Mostrar() {
  // A panel that a caller has up already is the caller's to take away.
  if (painel_.Visivel()) return;
  mostrado_ = true;
  painel_.ExibirOcultar(true, somenteCursor_);
}

void Espera::Ocultar() {
  if (!mostrado_) return;
  mostrado_ = false;
  painel_.ExibirOcultar(false, false);
}

FundoEscuro::FundoEscuro(Intensidade intensidade) {
  AplicarFundoEscuro(valores().HandleDaJanelaPrincipal, intensidade);
  aplicado_ = true;
}

FundoEscuro::~FundoEscuro() {
  try {
    Remover();
  } catch (const base::RuntimeError&) {
    // The error that ended the routine is the one to report.
  }
}

void FundoEscuro::Remover() {
  if (!aplicado_) return;
  aplicado_ = false;
  RemoverFundoEscuro(valores().HandleDaJanelaPrincipal);
}

}  // namespace frame
