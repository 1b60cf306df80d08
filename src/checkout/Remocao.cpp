#include "checkout/GradeDePagamentos.h"
#include "checkout/frmCaixaPagar.h"
#include "frame/CamposNumericos.h"
#include "frame/Mensagens.h"
#include "frame/Procedimento.h"
#include "frame/servicos/Pagamento.h"

namespace checkout {

using base::Currency;
using frame::LerCurrency;
using frame::LerDouble;
using frame::Ponto;
using enum servicos::pagamento::Codigo;

void frmCaixaPagar::zvcmdRemover_Click() {
  frame::Procedimento(*this, "zvcmdRemover_Click", [&](Ponto& ponto) {
    if (frame::SomenteLinhaEmBranco(msfgGrade)) {
      frame::Informar("Nenhum item econtrado na grade para ser removido.");
      zvcmbFormaDePagamento.SetFocus();
      return;
    }
    const bool unica = msfgGrade.Rows() == 2;
    if (unica) GradeComPagamentos = false;
    const std::int32_t linha = msfgGrade.Row();
    const Currency valor = base::ToCurrency(msfgGrade.TextMatrix(linha, kColunaValor));
    const Currency venda = LerCurrency(zvtxtValorDaVenda);
    const Currency pago = LerCurrency(zvtxtValorPago);
    ponto = 2;
    if (pago > venda) RetirarDoCreditoParaOCliente(base::Abs(unica ? venda - valor : valor));
    ponto = 3;
    const std::string& forma = msfgGrade.TextMatrix(linha, kColunaForma);
    if (servicos::pagamento::CodigoDa(forma) == kCreditoDoCliente) {
      zvnumCreditoDoCliente.Text = base::FormatMoney(LerCurrency(zvnumCreditoDoCliente) + valor);
    }
    ponto = 4;
    zvtxtValorPago.Text = base::FormatMoney(pago - valor);
    AtualizarSaldoSemPagamento();
    ponto = 5;
    frame::RetirarLinha(msfgGrade, linha);
  });
}

/// The change that the operator can still edit keeps the bound of the last tender added: the box's
/// tag is left alone here.
void frmCaixaPagar::AtualizarSaldoSemPagamento() {
  if (LerCurrency(zvtxtValorPago) == LerCurrency(zvtxtValorDaVenda)) {
    zvtxtSaldoDevedorOuTroco.Text = std::string(frame::kZeroEmDinheiro);
  } else if (zvtxtValorPago.Text() == frame::kZeroEmDinheiro) {
    zvtxtSaldoDevedorOuTroco.Text = zvtxtValorDaVenda.Text();
  } else {
    zvtxtSaldoDevedorOuTroco.Text =
        base::FormatMoney(LerDouble(zvtxtValorDaVenda) - LerDouble(zvtxtValorPago));
  }
  RotularSaldoOuTroco(LerCurrency(zvtxtSaldoDevedorOuTroco));
}

void frmCaixaPagar::RetirarDoCreditoParaOCliente(Currency valor) {
  Currency credito = base::ToCurrency(lblCreditoParaOCliente.Tag());
  if (!credito.IsZero()) credito = credito - valor;
  lblCreditoParaOCliente.Tag = base::FormatMoney(credito);
  if (credito <= Currency()) {
    lblCreditoParaOCliente.Tag = "0";
    lblCreditoParaOCliente.Visible = false;
  } else {
    RotularCreditoParaOCliente();
  }
}

void frmCaixaPagar::zvcmdAlterar_Click() {
  frame::Procedimento(*this, "zvcmdAlterar_Click", [&](Ponto& ponto) {
    if (frame::SomenteLinhaEmBranco(msfgGrade)) {
      frame::Informar("Nenhum item econtrado na grade para ser alterado.");
      zvcmbFormaDePagamento.SetFocus();
      return;
    }
    ponto = 2;
    const std::int32_t linha = msfgGrade.Row();
    zvcmbFormaDePagamento.Text = msfgGrade.TextMatrix(linha, kColunaForma);
    zvnumValor.Text = msfgGrade.TextMatrix(linha, kColunaValor);
    zvdtpDataDeVencimento.Text = msfgGrade.TextMatrix(linha, kColunaVencimento);
    ponto = 3;
    zvcmdRemover_Click();
    zvcmbFormaDePagamento.SetFocus();
    // Already now, so that no button moves from under the mouse when the combo is left.
    ExibirOcultarDataDeVencimento(servicos::pagamento::CodigoDa(zvcmbFormaDePagamento.Text()) ==
                                  kACredito);
  });
}

}  // namespace checkout
