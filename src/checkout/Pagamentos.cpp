#include "base/Text.h"
#include "checkout/GradeDePagamentos.h"
#include "checkout/frmCaixaPagar.h"
#include "consent/Autorizar.h"
#include "frame/CamposNumericos.h"
#include "frame/Mensagens.h"
#include "frame/Procedimento.h"
#include "frame/Valores.h"
#include "frame/modFuncoes.h"
#include "frame/servicos/Pagamento.h"
#include "platform/Desktop.h"

namespace checkout {

using base::Currency;
using frame::LerCurrency;
using frame::Ponto;
using enum servicos::pagamento::Codigo;

void frmCaixaPagar::zvcmbFormaDePagamento_Click() {
  frame::Procedimento(*this, "zvcmbFormaDePagamento_LostFocus", [&](Ponto& ponto) {
    if (zvcmbFormaDePagamento.ListIndex() == -1) return;
    const Currency saldo = LerCurrency(zvtxtSaldoDevedorOuTroco);
    const std::int32_t codigo = zvcmbFormaDePagamento.ItemData(zvcmbFormaDePagamento.ListIndex());
    ponto = 2;
    if (codigo == kCreditoDoCliente) {
      const bool cobre = LerCurrency(zvnumCreditoDoCliente) >= saldo;
      zvnumValor.Text = cobre ? zvtxtSaldoDevedorOuTroco.Text() : zvnumCreditoDoCliente.Text();
    } else if (saldo > Currency()) {
      zvnumValor.Text = zvtxtSaldoDevedorOuTroco.Text();
    }
    ponto = 3;
    if (zvdtpDataDeVencimento.IsEmpty()) {
      zvdtpDataDeVencimento.Text =
          base::Format(platform::Desktop::Current().Now(), base::DateMask::kDayMonthYear);
    }
    zvnumValor.SetFocus();
  });
}

void frmCaixaPagar::zvcmbFormaDePagamento_LostFocus() {
  frame::Procedimento(*this, "zvcmbFormaDePagamento_LostFocus", [&](Ponto&) {
    if (frame::TomarSupressaoDePesquisa()) return;
    ExibirOcultarDataDeVencimento(servicos::pagamento::CodigoDa(zvcmbFormaDePagamento.Text()) ==
                                  kACredito);
  });
}

void frmCaixaPagar::ExibirOcultarDataDeVencimento(bool exibir) {
  constexpr std::int32_t kLarga = 8970;
  constexpr std::int32_t kEstreita = 6720;
  lblDataDeVencimento.Visible = exibir;
  zvdtpDataDeVencimento.Visible = exibir;
  if (!exibir) zvdtpDataDeVencimento.Text = zvdtpDataDeVencimento.EmptyText();
  zvcmdAdicionar.Left = exibir ? kLarga : kEstreita;
}

void frmCaixaPagar::zvdtpDataDeVencimento_KeyPress(char32_t tecla) {
  if (tecla == platform::kEnterCharacter) zvcmdAdicionar_Click();
}

void frmCaixaPagar::zvcmdAdicionar_Click() {
  frame::Procedimento(*this, "zvcmdAdicionar_Click", [&](Ponto& ponto) {
    RestaurarRotulos();
    if (zvcmbFormaDePagamento.ListIndex() == -1) {
      frame::Recusar(lblFormaDePagamento, "Informe a forma de pagamento.", zvcmbFormaDePagamento);
      return;
    }
    ponto = 2;
    frame::PreencherSeVazio(zvnumValor, frame::kZeroEmDinheiro);
    const Currency valor = LerCurrency(zvnumValor);
    if (valor.IsZero() && valor != LerCurrency(zvtxtValorDaVenda)) {
      RecusarValor("Informe o valor pago.");
      return;
    }
    ponto = 3;
    const std::string forma = zvcmbFormaDePagamento.Text();
    const std::int16_t codigo = servicos::pagamento::CodigoDa(forma);
    if (codigo == kACredito && !PermitirVendaACredito(valor)) return;
    ponto = 4;
    // The credit is spoken for at once: a tender refused further down does not give it back.
    if (codigo == kCreditoDoCliente && !UsarCreditoDoCliente(valor)) return;
    ponto = 5;
    if (zvdtpDataDeVencimento.Visible() && ValidarData(zvdtpDataDeVencimento.Text()) == 1) {
      zvdtpDataDeVencimento.SetFocus();
      return;
    }
    ponto = 6;
    if (FormaJaEstaNaGrade(codigo)) {
      frame::Informar("Já existe esta forma de pagamento na grade.");
      zvcmbFormaDePagamento.SetFocus();
      return;
    }
    ponto = 7;
    msfgGrade.AddItem(forma + "\t" + base::FormatMoney(valor) + "\t" +
                      zvdtpDataDeVencimento.Text());
    if (!GradeComPagamentos) {
      msfgGrade.RemoveItem(1);
      GradeComPagamentos = true;
    }
    ponto = 8;
    AtualizarTotais();
    LimparPagamento();
  });
}

void frmCaixaPagar::RestaurarRotulos() {
  frame::RestaurarCorDosRotulos(*this, {"lblCliente", "lblInformacoesDaVenda"});
}

void frmCaixaPagar::RecusarValor(std::string_view texto) {
  frame::Recusar(lblValor, texto, zvnumValor);
  frame::SelecionarTudo(zvnumValor);
}

bool frmCaixaPagar::PermitirVendaACredito(Currency valor) {
  const double cliente = base::ToDouble(zvtxtCodigoDoCliente.Text());
  if (!frame::InformacoesDoLimiteDeCredito(cliente, valor)) {
    lblFormaDePagamento.ForeColor = frame::kCorDeRecusa;
    LimparPagamento();
    return false;
  }
  return frame::Direito("PermissaoDoModuloCaixaEfetuarVendasACreditoFiado") ||
         consent::Autorizar(consent::kAutorizarEfetuarVendasACreditoFiado, *this,
                            consent::Chamador::kAfastaSe);
}

bool frmCaixaPagar::UsarCreditoDoCliente(Currency valor) {
  const Currency credito = LerCurrency(zvnumCreditoDoCliente);
  if (valor > credito) {
    RecusarValor("Informe um valor igual ou menor que " + zvnumCreditoDoCliente.Text() +
                 ", pois é o crédito disponível do cliente.");
    return false;
  }
  zvnumCreditoDoCliente.Text = base::FormatMoney(credito - valor);
  return true;
}

bool frmCaixaPagar::FormaJaEstaNaGrade(std::int16_t codigo) const {
  for (std::int32_t linha = 1; linha < msfgGrade.Rows(); ++linha) {
    if (servicos::pagamento::CodigoDa(msfgGrade.TextMatrix(linha, kColunaForma)) == codigo)
      return true;
  }
  return false;
}

void frmCaixaPagar::AtualizarTotais() {
  Currency pago;
  for (std::int32_t linha = 1; linha < msfgGrade.Rows(); ++linha) {
    if (base::IsBlank(msfgGrade.TextMatrix(linha, kColunaForma))) continue;
    pago += base::ToCurrency(msfgGrade.TextMatrix(linha, kColunaValor));
  }
  zvtxtValorPago.Text = base::FormatMoney(pago);
  const Currency saldo = LerCurrency(zvtxtValorDaVenda) - LerCurrency(zvtxtValorPago);
  zvtxtSaldoDevedorOuTroco.Text = base::FormatMoney(saldo);
  zvtxtSaldoDevedorOuTroco.Tag = zvtxtSaldoDevedorOuTroco.Text();
  RotularSaldoOuTroco(saldo);
}

void frmCaixaPagar::RotularSaldoOuTroco(Currency saldo) {
  const bool troco = saldo < Currency();
  lblSaldoOuTroco.Caption = std::string(troco ? kTroco : kSaldoAPagar);
  zvtxtSaldoDevedorOuTroco.Locked = !troco;
}

void frmCaixaPagar::LimparPagamento() {
  const frame::SupressaoDePesquisa supressao;
  zvcmbFormaDePagamento.ListIndex = -1;
  zvnumValor.Text = std::string(frame::kZeroEmDinheiro);
  zvcmbFormaDePagamento.SetFocus();
}

std::int16_t frmCaixaPagar::ValidarCampos() {
  RestaurarRotulos();
  const Currency pago = LerCurrency(zvtxtValorPago);
  if (pago.IsZero() && pago != LerCurrency(zvtxtValorDaVenda)) {
    return frame::Recusar(lblFormaDePagamento, "Informe o pagamento.", zvcmbFormaDePagamento);
  }
  if (LerCurrency(zvtxtSaldoDevedorOuTroco) > Currency()) {
    return frame::Recusar(lblFormaDePagamento,
                          "Restam " + zvtxtSaldoDevedorOuTroco.Text() + " para pagar.",
                          zvcmbFormaDePagamento);
  }
  return 0;
}

}  // namespace checkout
