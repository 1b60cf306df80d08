#pragma once

#include "platform/Form.h"
#include "platform/PictureBox.h"

namespace frame {

/// The wait panel of a screen: shown over the darkened host for at least one second, or as an
/// hourglass alone. Every screen that has a `picMensagem` routes its ExibirOcultarpicMensagem and
/// CentralizarpicMensagem here.
class PainelDeMensagem {
 public:
  PainelDeMensagem(platform::Form& formulario, platform::PictureBox& picMensagem)
      : formulario_(formulario), picMensagem_(picMensagem) {}

  /// Shows the panel, or with `somenteCursor` the hourglass, or takes either away. The second for
  /// which the panel stands is deliberate; events run meanwhile.
  void ExibirOcultar(bool exibir, bool somenteCursor);
  bool Visivel() const { return picMensagem_.Visible(); }
  /// A little above the centre of the form, in front of all.
  void Centralizar();

 private:
  platform::Form& formulario_;
  platform::PictureBox& picMensagem_;
};

/// Shows the panel for a stretch of a routine, and takes it away on the routine's early ends; an
/// error on the way frees the host as well.
class Espera {
 public:
  explicit Espera(PainelDeMensagem& painel, bool somenteCursor = false);
  ~Espera();
  Espera(const Espera&) = delete;
  Espera& operator=(const Espera&) = delete;

  void Ocultar();
  void Mostrar();

 private:
  PainelDeMensagem& painel_;
  bool somenteCursor_;
  bool mostrado_ = false;
};

/// Gives a form a waiting pointer for a stretch of a routine.
class PonteiroDeEspera {
 public:
  explicit PonteiroDeEspera(platform::Form& formulario,
                            std::int16_t ponteiro = platform::kArrowHourglassPointer)
      : formulario_(formulario) {
    formulario_.MousePointer = ponteiro;
  }
  ~PonteiroDeEspera() { formulario_.MousePointer = platform::kDefaultPointer; }
  PonteiroDeEspera(const PonteiroDeEspera&) = delete;
  PonteiroDeEspera& operator=(const PonteiroDeEspera&) = delete;

 private:
  platform::Form& formulario_;
};

/// What the host's window is darkened for, in the numbers of the component that does it.
enum Intensidade : std::int16_t { kAtrasDeTela = 0, kAtrasDeEspera = 1 };

/// Darkens the host's main window while a screen is open over it.
class FundoEscuro {
 public:
  explicit FundoEscuro(Intensidade intensidade = kAtrasDeTela);
  ~FundoEscuro();
  FundoEscuro(const FundoEscuro&) = delete;
  FundoEscuro& operator=(const FundoEscuro&) = delete;

  void Remover();
  /// Leaves the window dark for somebody else to clear.
  void Manter() { aplicado_ = false; }

 private:
  bool aplicado_ = false;
};

}  // namespace frame
