#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/Form.h"
#include "platform/Label.h"
#include "platform/PictureBox.h"
#include "platform/ZVComboBox.h"
#include "platform/ZVCommandButton.h"
#include "platform/ZVTextBox.h"

namespace desktop::reports {

/// Asks into which folder, under which name and, where there are several, in which format a
/// document is saved.
class frmSalvarDocumento final : public platform::Form {
 public:
  /// A folder that the operator knows by a name.
  struct Lugar {
    std::string nome, pasta;
  };

  /// A kind of file, with the ending of its name.
  struct Formato {
    std::string nome, final;
  };

  /// `nome` without an ending; one format at least, the first is the usual one.
  frmSalvarDocumento(std::vector<Lugar> lugares, const std::string& nome,
                     std::vector<Formato> formatos);

  platform::Label lblLugar{*this, "lblLugar"};
  platform::ZVComboBox zvcmbLugar{*this, "zvcmbLugar"};
  platform::Label lblPasta{*this, "lblPasta"};
  platform::ZVTextBox zvtxtPasta{*this, "zvtxtPasta"};
  platform::Label lblNome{*this, "lblNome"};
  platform::ZVTextBox zvtxtNome{*this, "zvtxtNome"};
  platform::Label lblFormato{*this, "lblFormato"};
  platform::ZVComboBox zvcmbFormato{*this, "zvcmbFormato"};
  platform::PictureBox picRodape{*this, "picRodape"};
  platform::ZVCommandButton zvcmdCancelar{picRodape, "zvcmdCancelar"};
  platform::ZVCommandButton zvcmdSalvar{picRodape, "zvcmdSalvar"};

  /// Saves into the file; false when that failed and was told, so that the operator may choose
  /// another one.
  std::function<bool(const std::string& caminho)> aoSalvar;

 private:
  void zvcmbLugar_Click();
  void zvcmdSalvar_Click();
  void Recusar(platform::Label& rotulo, const std::string& frase, platform::ZVTextBox& campo);

  std::vector<Lugar> lugares_;
  std::vector<Formato> formatos_;
};

/// The folders in which operators keep documents, the usual one first: documents, desktop,
/// downloads, their own, and what is plugged in.
std::vector<frmSalvarDocumento::Lugar> UsualPlaces();

}  // namespace desktop::reports
