#pragma once

#include <cstdint>

#include "platform/Form.h"
#include "platform/Label.h"
#include "platform/Shape.h"

namespace frame {

/// A small form that asks the operator to wait while a screen of its own steps aside.
class frmMensagem : public platform::Form {
 public:
  frmMensagem();

  platform::Label lblMensagem{*this, "lblMensagem"};
  platform::Shape lshpObj{*this, "lshpObj"};

  /// Fits the form to its text, shows it and lets it stand for a second. `falha` 1 on failure.
  void MontarExibirFormulario(std::int16_t& falha);
  void Pausar(double segundos);

 private:
  void Form_Load();
  void Form_Resize();
  void Form_Unload();

  bool estender_ = true;  ///< Turns with each Resize: only every other one stretches the label.
};

}  // namespace frame
