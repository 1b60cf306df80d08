#pragma once

#include <string_view>

#include "frame/Lista.h"
#include "platform/Form.h"
#include "platform/Label.h"
#include "platform/MSFlexGrid.h"
#include "platform/PictureBox.h"
#include "platform/ZVCommandButton.h"
#include "platform/ZVDateBox.h"
#include "platform/ZVTextBox.h"
#include "platform/ZVTheme.h"
#include "siblings/Sessao.h"

namespace siblings {

/// What a customer has bought in a period, with the lines of the selected sale. Nothing can be
/// changed here.
class frmHistoricoDeVendas final : public platform::Form {
 public:
  /// `dataInicial` is the first day of the period, dd/mm/yyyy; the last one is today.
  frmHistoricoDeVendas(Cliente cliente, std::string_view dataInicial);

  platform::ZVTheme zvTheme{*this, "zvTheme"};
  platform::Label lblCliente{*this, "lblCliente"};
  platform::Label lblDataInicial{*this, "lblDataInicial"};
  platform::ZVDateBox zvdtpDataInicial{*this, "zvdtpDataInicial"};
  platform::Label lblDataFinal{*this, "lblDataFinal"};
  platform::ZVDateBox zvdtpDataFinal{*this, "zvdtpDataFinal"};
  platform::ZVCommandButton zvcmdPesquisar{*this, "zvcmdPesquisar"};
  platform::Label lblVendas{*this, "lblVendas"};
  platform::MSFlexGrid msfgGrade{*this, "msfgGrade"};
  platform::Label lblItens{*this, "lblItens"};
  platform::MSFlexGrid msfgItens{*this, "msfgItens"};
  platform::PictureBox picTotais{*this, "picTotais"};
  platform::Label lblQuantidade{picTotais, "lblQuantidade"};
  platform::Label lblDescontosDasVendas{picTotais, "lblDescontosDasVendas"};
  platform::Label lblValorBruto{picTotais, "lblValorBruto"};
  platform::ZVTextBox zvtxtValorBruto{picTotais, "zvtxtValorBruto"};
  platform::Label lblDescontos{picTotais, "lblDescontos"};
  platform::ZVTextBox zvtxtDescontos{picTotais, "zvtxtDescontos"};
  platform::Label lblValorLiquido{picTotais, "lblValorLiquido"};
  platform::ZVTextBox zvtxtValorLiquido{picTotais, "zvtxtValorLiquido"};
  platform::PictureBox picRodape{*this, "picRodape"};
  platform::Label lblAviso{picRodape, "lblAviso"};
  platform::ZVCommandButton zvcmdFechar{picRodape, "zvcmdFechar"};

  /// Shows the form over the darkened host until the operator closes it.
  void MontarExibirFormulario();

 private:
  void Desenhar();
  void zvcmdPesquisar_Click();
  void msfgGrade_SelChange();

  /// Whether the two days make a period.
  bool Validar();
  /// Fills the grids with the period; false after a fault, which has been reported.
  bool Pesquisar();
  void Somar(base::RecordSet& vendas);

  Cliente cliente_;
  frame::Lista vendas_;
  frame::Lista itens_;
};

}  // namespace siblings
