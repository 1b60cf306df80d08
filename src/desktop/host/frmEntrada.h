#pragma once

#include <functional>
#include <string>

#include "base/Record.h"
#include "platform/Form.h"
#include "platform/Label.h"
#include "platform/PictureBox.h"
#include "platform/ZVCommandButton.h"
#include "platform/ZVTextBox.h"

namespace host {

/// The sign-in of the host application: name and password, checked by the clinic's login service.
class frmEntrada final : public platform::Form {
 public:
  frmEntrada();

  platform::PictureBox picCartao{*this, "picCartao"};
  platform::PictureBox picMarca{picCartao, "picMarca"};
  platform::Label lblTitulo{picCartao, "lblTitulo"};
  platform::Label lblSubtitulo{picCartao, "lblSubtitulo"};
  platform::Label lblUsuario{picCartao, "lblUsuario"};
  platform::ZVTextBox zvtxtUsuario{picCartao, "zvtxtUsuario"};
  platform::Label lblSenha{picCartao, "lblSenha"};
  platform::ZVTextBox zvtxtSenha{picCartao, "zvtxtSenha"};
  platform::Label lblRecusa{picCartao, "lblRecusa"};
  platform::ZVCommandButton zvcmdEntrar{picCartao, "zvcmdEntrar"};

  /// Someone signed in; the record is the user with the rights.
  std::function<void(base::RecordSetPtr)> aoEntrar;

 private:
  void Form_Resize();
  void zvtxtUsuario_KeyDown(platform::KeyStroke& tecla);
  void zvcmdEntrar_Click();
  /// Tells what stands in the way, without a box, and goes to the field.
  void Recusar(platform::Label& rotulo, const std::string& frase, platform::ZVTextBox& campo);
};

}  // namespace host
