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

/// Asks into which folder and under which name a document is saved as PDF.
class frmSalvarPDF final : public platform::Form {
 public:
  /// A folder that the operator knows by a name.
  struct Lugar {
    std::string nome, pasta;
  };

  /// `nome` without an ending.
  frmSalvarPDF(std::vector<Lugar> lugares, const std::string& nome);

  platform::Label lblLugar{*this, "lblLugar"};
  platform::ZVComboBox zvcmbLugar{*this, "zvcmbLugar"};
  platform::Label lblPasta{*this, "lblPasta"};
  platform::ZVTextBox zvtxtPasta{*this, "zvtxtPasta"};
  platform::Label lblNome{*this, "lblNome"};
  platform::ZVTextBox zvtxtNome{*this, "zvtxtNome"};
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
};

/// The folders in which operators keep documents, the usual one first: documents, desktop,
/// downloads, their own, and what is plugged in.
std::vector<frmSalvarPDF::Lugar> UsualPlaces();

}  // namespace desktop::reports
