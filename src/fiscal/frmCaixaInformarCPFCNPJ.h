#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/Form.h"
#include "platform/Label.h"
#include "platform/OptionButton.h"
#include "platform/PictureBox.h"
#include "platform/ZVCommandButton.h"
#include "platform/ZVMaskedBox.h"
#include "platform/ZVTheme.h"

namespace fiscal {

/// Asks whether the fiscal coupon goes out with a consumer's document, and with which.
class frmCaixaInformarCPFCNPJ : public platform::Form {
 public:
  enum : std::int32_t { kNaoEnviar = 0, kDoCliente = 1, kOutroCPF = 2, kOutroCNPJ = 3 };

  /// What MontarExibirFormulario answers when the operator closed the dialog without an answer.
  static constexpr std::int16_t kFechado = 99;

  /// The operator's last answer. It stands for the life of the module: whoever closes the dialog
  /// without an answer keeps that of the sale before.
  static inline std::int32_t TipoDeEnvio = kNaoEnviar;
  /// The document with its punctuation, for another CPF or CNPJ.
  static inline std::string CPFCNPJInformado;

  frmCaixaInformarCPFCNPJ();

  platform::ZVTheme zvTheme{*this, "zvTheme"};
  std::array<platform::OptionButton, 3> optTipo{platform::OptionButton{*this, "optTipo(0)"},
                                                platform::OptionButton{*this, "optTipo(1)"},
                                                platform::OptionButton{*this, "optTipo(2)"}};
  platform::Label lblCpfCnpj{*this, "lblCpfCnpj"};
  platform::ZVMaskedBox zvmskCpfCnpj{*this, "zvmskCpfCnpj"};
  platform::PictureBox picRodape{*this, "picRodape"};
  platform::ZVCommandButton zvcmdNaoEnviar{picRodape, "zvcmdNaoEnviar"};
  platform::ZVCommandButton zvcmdEnviar{picRodape, "zvcmdEnviar"};

  /// Shows the dialog until the operator is done: 0, or 99 when they closed it. The answer stands
  /// in TipoDeEnvio either way.
  std::int16_t MontarExibirFormulario();

 private:
  void optTipo_Click(std::size_t indice);
  void zvcmdEnviar_Click();
  void zvcmdNaoEnviar_Click();

  /// 1 when the document is refused, the operator having been told.
  std::int16_t ValidarCampos();
  std::int16_t ValidarCPF();
  std::int16_t ValidarCNPJ();
  std::int16_t Recusar(std::string_view texto);
  /// Refuses a number whose check digits are wrong, all of it selected to be typed anew.
  std::int16_t RecusarDigitos(std::string_view texto);

  bool respondido_ = false;
};

}  // namespace fiscal
