#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Form.h"
#include "platform/Label.h"
#include "platform/PictureBox.h"
#include "platform/Shape.h"
#include "platform/ZVCommandButton.h"
#include "platform/ZVNumberBox.h"
#include "platform/ZVTextBox.h"
#include "platform/ZVTheme.h"
#include "register/Movimentos.h"

namespace registers {

/// Opens or closes the register, or records a deposit or a withdrawal: a value, a note, and one
/// record handed to the service. One instance serves one movement.
class frmCaixaMovimento : public platform::Form {
 public:
  explicit frmCaixaMovimento(const Movimento& movimento);

  platform::ZVTheme zvTheme{*this, "zvTheme"};
  platform::Label lblExplicacao{*this, "lblExplicacao"};
  platform::Label lblValor{*this, "lblValor"};
  platform::ZVNumberBox zvnumValorEmDinheiro{*this, "zvnumValorEmDinheiro"};
  platform::Label lblObservacao{*this, "lblObservacao"};
  platform::ZVTextBox zvtxtObservacao{*this, "zvtxtObservacao"};
  platform::PictureBox picRodape{*this, "picRodape"};
  platform::Label lblObservacaoDeCamposObrigatorios{picRodape, "lblObservacaoDeCamposObrigatorios"};
  platform::ZVCommandButton zvcmdCancelar{picRodape, "zvcmdCancelar"};
  platform::ZVCommandButton zvcmdSalvar{picRodape, "zvcmdSalvar"};
  platform::Shape lshpObj{*this, "lshpObj"};

  /// Shows the form over the darkened host until the operator is done. 0, or 1 after a fault of
  /// its own, which has been reported.
  std::int16_t MontarExibirFormulario();

  /// The movement stands in the register.
  bool OperacaoConcluida() const { return operacaoConcluida_; }
  /// The service's result when it is none of the known four, with the text that came with it.
  std::int32_t NumeroDaFalha() const { return numeroDaFalha_; }
  std::string DescricaoDaFalha() const { return descricaoDaFalha_; }

 private:
  void Form_Load();
  void zvcmdSalvar_Click();
  void zvcmdCancelar_Click();

  /// Whether the value and the operator's rights, or a supervisor's, allow the movement.
  bool Permitido();
  void Registrar();

  const Movimento& movimento_;
  bool operacaoConcluida_ = false;
  std::int32_t numeroDaFalha_ = 0;
  std::string descricaoDaFalha_;
};

}  // namespace registers
