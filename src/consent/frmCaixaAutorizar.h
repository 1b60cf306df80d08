#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "consent/Autorizacoes.h"
#include "platform/Form.h"
#include "platform/Label.h"
#include "platform/PictureBox.h"
#include "platform/Shape.h"
#include "platform/ZVCommandButton.h"
#include "platform/ZVTextBox.h"
#include "platform/ZVTheme.h"

namespace consent {

/// Asks a supervisor for name and password on the spot. Only a supervisor who authenticates and
/// holds the right lets the caller go on; every other way out of the dialog is a refusal.
class frmCaixaAutorizar : public platform::Form {
 public:
  /// What the dialog answers when nobody authorised.
  static constexpr std::int16_t kNaoAutorizado = 99;

  explicit frmCaixaAutorizar(const Autorizacao& autorizacao);

  platform::ZVTheme zvTheme{*this, "zvTheme"};
  platform::Label lblUsuario{*this, "lblUsuario"};
  platform::ZVTextBox zvtxtUsuario{*this, "zvtxtUsuario"};
  platform::Label lblSenha{*this, "lblSenha"};
  platform::ZVTextBox zvtxtSenha{*this, "zvtxtSenha"};
  platform::PictureBox picRodape{*this, "picRodape"};
  platform::Label lblObservacaoDeCamposObrigatorios{picRodape, "lblObservacaoDeCamposObrigatorios"};
  platform::ZVCommandButton zvcmdFechar{picRodape, "zvcmdFechar"};
  platform::ZVCommandButton zvcmdOk{picRodape, "zvcmdOk"};
  platform::Shape lshpObj{*this, "lshpObj"};

  /// Shows the dialog and answers in `resultado`: 0 authorised, 99 not.
  void MontarExibirFormulario(std::int16_t& resultado);

 private:
  void Form_Load();
  void Form_Resize();
  void Form_Unload();
  void zvcmdOk_Click();
  void zvcmdFechar_Click();

  std::int16_t ValidarCampos();
  /// Whether the two fields name a supervisor who holds the right; the operator is told why not.
  bool Autenticar(std::int16_t& ponto);

  const Autorizacao& autorizacao_;
  bool Cancelado = false;
  bool Autorizado = false;
};

}  // namespace consent
