#include "checkout/frmCaixaPagar.h"

#include "base/Numbers.h"
#include "checkout/GradeDePagamentos.h"
#include "frame/CampoDeValor.h"
#include "frame/CamposNumericos.h"
#include "frame/FormasDePagamento.h"
#include "frame/Procedimento.h"
#include "frame/Valores.h"
#include "frame/modRolagemComMouse.h"
#include "platform/Layout.h"

namespace checkout {

using base::Currency;
using frame::Ponto;

frmCaixaPagar::frmCaixaPagar() : Form("frmCaixaPagar") {
  cancelButton = &zvcmdCancelar;
  picMensagem.Visible.Assign(false);
  // The figures and the customer can be read, reached and copied, but not changed.
  for (platform::EditBox* campo : std::initializer_list<platform::EditBox*>{
           &zvtxtApelidoOuNomeFantasiaDoCliente, &zvtxtNomeOuRazaoSocialDoCliente,
           &zvtxtCodigoDoCliente, &zvnumCreditoDoCliente, &zvtxtValorDaVenda, &zvtxtValorPago,
           &zvtxtSaldoDevedorOuTroco}) {
    campo->Locked.Assign(true);
  }
  LigarEventos();
  Arrange(Desenho());
}

void frmCaixaPagar::LigarEventos() {
  UnloadEvent = [this](bool&) { Form_Unload(); };
  zvcmbFormaDePagamento.Click = [this] { zvcmbFormaDePagamento_Click(); };
  zvcmbFormaDePagamento.LostFocus = [this] { zvcmbFormaDePagamento_LostFocus(); };
  frame::LigarCampoDeValor(zvnumValor);
  zvdtpDataDeVencimento.KeyPress = [this](char32_t& tecla) {
    zvdtpDataDeVencimento_KeyPress(tecla);
  };
  zvcmdAdicionar.Click = [this] { zvcmdAdicionar_Click(); };
  msfgGrade.SelChange = [this] { frame::SelecionarLinhaInteira(msfgGrade); };
  msfgGrade.GotFocus = [this] { frame::AtivarRolagemComMouse(*this, msfgGrade); };
  msfgGrade.LostFocus = [] { frame::DesativarRolagemComMouse(); };
  zvcmdAlterar.Click = [this] { zvcmdAlterar_Click(); };
  zvcmdRemover.Click = [this] { zvcmdRemover_Click(); };
  zvtxtSaldoDevedorOuTroco.GotFocus = [this] { frame::SelecionarTudo(zvtxtSaldoDevedorOuTroco); };
  zvtxtSaldoDevedorOuTroco.KeyPress = [this](char32_t& tecla) {
    zvtxtSaldoDevedorOuTroco_KeyPress(tecla);
  };
  zvtxtSaldoDevedorOuTroco.Validate = [this](bool& cancelar) {
    zvtxtSaldoDevedorOuTroco_Validate(cancelar);
  };
  zvtxtSaldoDevedorOuTroco.LostFocus = [this] { zvtxtSaldoDevedorOuTroco_LostFocus(); };
  zvcmdConfirmar.Click = [this] { zvcmdConfirmar_Click(); };
  zvcmdCancelar.Click = [this] { zvcmdCancelar_Click(); };
}

void frmCaixaPagar::NumeroDaFichaClinica(std::int32_t numero) {
  venda_.NumeroDaFichaClinica = numero;
}
void frmCaixaPagar::ApelidoOuNomeFantasiaDoCliente(std::string_view apelido) {
  zvtxtApelidoOuNomeFantasiaDoCliente.Text = std::string(apelido);
}
void frmCaixaPagar::NomeOuRazaoSocialDoCliente(std::string_view nome) {
  zvtxtNomeOuRazaoSocialDoCliente.Text = std::string(nome);
}
void frmCaixaPagar::CodigoDoCliente(std::int32_t codigo) {
  zvtxtCodigoDoCliente.Text = base::ToText(codigo);
}
void frmCaixaPagar::CreditoDoCliente(Currency credito) {
  zvnumCreditoDoCliente.Text = base::Format(credito, "#0.00");
}
void frmCaixaPagar::ValorBruto(Currency valor) {
  venda_.ValorBruto = valor;
}
void frmCaixaPagar::ValorTotalDeDescontos(Currency valor) {
  venda_.ValorTotalDeDescontos = valor;
}
void frmCaixaPagar::ValorLiquido(Currency valor) {
  venda_.ValorLiquido = valor;
}
void frmCaixaPagar::EnderecoDoCliente(std::string_view endereco) {
  venda_.EnderecoDoCliente = endereco;
}
void frmCaixaPagar::CanalDeComunicacaoDoCliente(std::string_view canal) {
  venda_.CanalDeComunicacaoDoCliente = canal;
}
void frmCaixaPagar::GradeDeItensDaVendas(const base::GradeLida& grade) {
  venda_.GradeDeItensDaVendas = &grade;
}
void frmCaixaPagar::PercentualTotalDeDesconto(Currency percentual) {
  venda_.PercentualTotalDeDesconto = percentual;
}
void frmCaixaPagar::Custo(Currency valor) {
  venda_.Custo = valor;
}
void frmCaixaPagar::Comissao(Currency valor) {
  venda_.Comissao = valor;
}
void frmCaixaPagar::LucroEmValor(Currency valor) {
  venda_.LucroEmValor = valor;
}
void frmCaixaPagar::LucroEmPercentual(Currency valor) {
  venda_.LucroEmPercentual = valor;
}
void frmCaixaPagar::NumeroDeAnimais(std::int16_t numero) {
  venda_.NumeroDeAnimais = numero;
}
void frmCaixaPagar::Animais(std::string_view animais) {
  venda_.Animais = base::ToInt16(base::ToDouble(animais));
}

std::int16_t frmCaixaPagar::MontarExibirFormulario() {
  std::int16_t resultado = kNaoConfirmado;
  frame::Procedimento(*this, "MontarExibirFormulario", [&](Ponto& ponto) {
    zvtxtValorDaVenda.Text = base::FormatMoney(venda_.ValorLiquido);
    zvtxtSaldoDevedorOuTroco.Text = zvtxtValorDaVenda.Text();
    lblCreditoParaOCliente.Tag = base::FormatMoney(Currency());
    zvtxtValorPago.Text = std::string(frame::kZeroEmDinheiro);
    zvnumValor.Text = std::string(frame::kZeroEmDinheiro);
    frame::PreencherSeVazio(zvnumCreditoDoCliente, frame::kZeroEmDinheiro);
    ponto = 2;
    lblCreditoParaOCliente.Visible = false;
    ExibirOcultarDataDeVencimento(false);
    ponto = 3;
    zvcmdConfirmar.ToolTipText = "Efetuar pagamento";
    zvcmdCancelar.ToolTipText = "Cancelar pagamento";
    ponto = 4;
    std::int16_t falha = 0;
    PreencherzvcmbFormaDePagamento(falha);
    if (falha == 1) return;
    ponto = 5;
    Grade_Configurar(falha);
    if (falha == 1) return;
    GradeComPagamentos = false;
    ponto = 6;
    ShowModal();
    resultado = PagamentoConfirmado ? std::int16_t{0} : kNaoConfirmado;
  });
  return resultado;
}

void frmCaixaPagar::PreencherzvcmbFormaDePagamento(std::int16_t& falha) {
  falha = 1;
  frame::Procedimento(frame::etiquetas::kPreencherFormaDePagamento, [&](Ponto&) {
    const frame::SupressaoDePesquisa supressao;
    const bool temCredito = !frame::LerCurrency(zvnumCreditoDoCliente).IsZero();
    frame::OferecerFormasDePagamento(zvcmbFormaDePagamento, servicos::pagamento::kFormas,
                                     temCredito);
    falha = 0;
  });
}

void frmCaixaPagar::Grade_Configurar(std::int16_t& falha) {
  falha = 1;
  frame::Procedimento(frame::etiquetas::kGradeDePagamentosConfigurar, [&](Ponto&) {
    frame::ConfigurarColunas(msfgGrade, kColunasDePagamento);
    frame::SelecionarLinha(msfgGrade, 1);
    falha = 0;
  });
}

void frmCaixaPagar::Form_Unload() {
  PagamentoCancelado = !PagamentoConfirmado;
}

void frmCaixaPagar::zvcmdCancelar_Click() {
  PagamentoCancelado = true;
  Unload();
}

void frmCaixaPagar::ExibirOcultarpicMensagem(bool exibir, bool somenteCursor) {
  painel_.ExibirOcultar(exibir, somenteCursor);
}

void frmCaixaPagar::CentralizarpicMensagem() {
  painel_.Centralizar();
}

}  // namespace checkout
