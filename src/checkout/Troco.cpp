#include "base/Text.h"
#include "checkout/frmCaixaPagar.h"
#include "frame/CamposNumericos.h"
#include "frame/Mensagens.h"
#include "frame/Procedimento.h"

namespace checkout {

using base::Currency;
using frame::LerCurrency;
using frame::Ponto;

void frmCaixaPagar::zvtxtSaldoDevedorOuTroco_KeyPress(char32_t& tecla) {
  if (tecla == platform::kEnterCharacter) zvtxtSaldoDevedorOuTroco_LostFocus();
  frame::FiltrarTeclaDeDinheiro(zvtxtSaldoDevedorOuTroco, tecla);
}

void frmCaixaPagar::zvtxtSaldoDevedorOuTroco_Validate(bool& cancelar) {
  frame::Procedimento(*this, "zvtxtSaldoDevedorOuTrocoEmDinheiro_Validate", [&](Ponto&) {
    if (base::IsNumeric(zvtxtSaldoDevedorOuTroco.Text())) return;
    frame::Informar("Informe um valor numérico para o valor.");
    zvtxtSaldoDevedorOuTroco.Text = std::string(frame::kZeroEmDinheiro);
    cancelar = true;
  });
}

void frmCaixaPagar::zvtxtSaldoDevedorOuTroco_LostFocus() {
  frame::Procedimento(*this, "zvtxtSaldoDevedorOuTroco_LostFocus", [&](Ponto& ponto) {
    platform::ZVTextBox& caixa = zvtxtSaldoDevedorOuTroco;
    if (!base::IsNumeric(caixa.Text())) caixa.Text = std::string(frame::kZeroEmDinheiro);
    if (lblSaldoOuTroco.Caption() != kTroco) return;
    ponto = 2;
    // The operator may type the change without its sign.
    if (LerCurrency(caixa) >= Currency()) {
      caixa.Text = base::FormatMoney(-LerCurrency(caixa));
    }
    ponto = 3;
    if (caixa.Text() == caixa.Tag()) {
      lblCreditoParaOCliente.Visible = false;
      return;
    }
    const Currency troco = base::ToCurrency(caixa.Tag());
    if (base::Abs(LerCurrency(caixa)) > base::Abs(troco)) {
      frame::Informar("O troco máximo é de " + base::FormatMoney(troco));
      caixa.Text = std::string(frame::kZeroEmDinheiro);
      frame::SelecionarTudo(caixa);
      return;
    }
    ponto = 4;
    const Currency menos = base::ToCurrency(base::FormatMoney(troco - LerCurrency(caixa)));
    lblCreditoParaOCliente.Tag = base::FormatMoney(-menos);
    RotularCreditoParaOCliente();
    lblCreditoParaOCliente.Visible = true;
  });
}

void frmCaixaPagar::RotularCreditoParaOCliente() {
  lblCreditoParaOCliente.Caption = "Credito para o cliente: " + lblCreditoParaOCliente.Tag();
}

}  // namespace checkout
