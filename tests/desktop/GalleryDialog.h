#pragma once

#include "platform/Form.h"
#include "platform/Label.h"
#include "platform/MSFlexGrid.h"
#include "platform/OptionButton.h"
#include "platform/PictureBox.h"
#include "platform/Shape.h"
#include "platform/ZVComboBox.h"
#include "platform/ZVCommandButton.h"
#include "platform/ZVDateBox.h"
#include "platform/ZVMaskedBox.h"
#include "platform/ZVMemo.h"
#include "platform/ZVNumberBox.h"
#include "platform/ZVPeriodBox.h"
#include "platform/ZVTextBox.h"
#include "platform/ZVTheme.h"

namespace gallery {

/// A dialog with the kinds of field that the counter has not, a refused field and locked amounts.
class Dialog final : public platform::Form {
 public:
  Dialog();

  platform::ZVTheme zvTema{*this, "zvTema"};
  platform::Label lblUsuario{*this, "lblUsuario"};
  platform::ZVTextBox zvtxtUsuario{*this, "zvtxtUsuario"};
  platform::Label lblSenha{*this, "lblSenha"};
  platform::ZVTextBox zvtxtSenha{*this, "zvtxtSenha"};
  platform::PictureBox picVenda{*this, "picVenda"};
  platform::Label lblVenda{picVenda, "lblVenda"};
  platform::ZVTextBox zvtxtVenda{picVenda, "zvtxtVenda"};
  platform::PictureBox picTroco{*this, "picTroco"};
  platform::Label lblTroco{picTroco, "lblTroco"};
  platform::ZVTextBox zvtxtTroco{picTroco, "zvtxtTroco"};
  platform::Label lblForma{*this, "lblForma"};
  platform::ZVComboBox zvcmbForma{*this, "zvcmbForma"};
  platform::Label lblValor{*this, "lblValor"};
  platform::ZVNumberBox zvnumValor{*this, "zvnumValor"};
  platform::Label lblData{*this, "lblData"};
  platform::ZVDateBox zvdtpData{*this, "zvdtpData"};
  platform::Label lblCPF{*this, "lblCPF"};
  platform::ZVMaskedBox zvmskCPF{*this, "zvmskCPF"};
  platform::Label lblPeriodo{*this, "lblPeriodo"};
  platform::ZVPeriodBox zvperPeriodo{*this, "zvperPeriodo"};
  platform::OptionButton optTodos{*this, "optTodos"};
  platform::OptionButton optVencidos{*this, "optVencidos"};
  platform::Label lblObservacao{*this, "lblObservacao"};
  platform::ZVMemo zvmemObservacao{*this, "zvmemObservacao"};
  platform::MSFlexGrid msfgDebitos{*this, "msfgDebitos"};
  platform::Shape shpLinha{*this, "shpLinha"};
  platform::PictureBox picRodape{*this, "picRodape"};
  platform::ZVCommandButton zvcmdCancelar{picRodape, "zvcmdCancelar"};
  platform::ZVCommandButton zvcmdConfirmar{picRodape, "zvcmdConfirmar"};

  void Fill();
};

}  // namespace gallery
