#include "base/DateTime.h"
#include "base/RuntimeError.h"
#include "checkout/DadosDoComprovante.h"
#include "checkout/GradeDePagamentos.h"
#include "checkout/drComprovante.h"
#include "checkout/frmCaixaPagar.h"
#include "frame/CamposNumericos.h"
#include "frame/Mensagens.h"
#include "frame/Procedimento.h"
#include "frame/Valores.h"
#include "frame/servicos/Pagamento.h"
#include "frame/servicos/ZOVA_A_RelFin.clsRelFin.h"
#include "platform/Desktop.h"

// The papers of a sale that is registered: the receipt, and a promissory note for each tender on
// credit. Nothing that fails here undoes the sale.
namespace checkout {

using base::Currency;
using frame::Ponto;
using enum servicos::pagamento::Codigo;
using frame::valores;

namespace {

/// Prints a paper, asking first where the company wants that.
template <class Impressao>
void Imprimir(frame::Espera& espera, bool perguntar, std::string_view pergunta,
              Impressao impressao) {
  if (!perguntar) {
    impressao();
    return;
  }
  espera.Ocultar();
  if (frame::Perguntar(pergunta)) impressao();
  espera.Mostrar();
}

/// The tenders of a sale as its receipt tells them.
struct Recebimento {
  Currency pago;  ///< All but what is on credit.
  Currency aReceber;
  std::string rotulo;
};

Recebimento LerRecebimento(const base::GradeLida& pagamentos) {
  Recebimento recebimento;
  std::string nome, lista;
  int formas = 0;
  for (std::int32_t linha = 1; linha < pagamentos.Rows(); ++linha) {
    const std::string& forma = pagamentos.TextMatrix(linha, kColunaForma);
    if (forma.empty()) continue;  // A sale of nothing was paid with nothing.
    const std::string& valor = pagamentos.TextMatrix(linha, kColunaValor);
    const Currency quantia = base::ToCurrency(valor);
    ++formas;
    if (servicos::pagamento::CodigoDa(forma) == kACredito) {
      recebimento.aReceber += quantia;
      continue;
    }
    recebimento.pago += quantia;
    // What follows "N-".
    nome = forma.substr(std::min<std::size_t>(2, forma.size()));
    if (!lista.empty()) lista += " / ";
    lista.append(nome).append(": ").append(valor);
  }
  // Beside another tender, one on credit too, each is told with its value.
  const std::string& quais = formas == 1 ? nome : lista;
  recebimento.rotulo = quais.empty() ? "Valor Pago:" : "Valor Pago (" + quais + "):";
  return recebimento;
}

}  // namespace

void frmCaixaPagar::ImprimirComprovante(frame::Espera& espera, std::int32_t numeroDaVenda) {
  if (!valores().ImprimirComprovanteDePagamento) return;
  Imprimir(espera, valores().SolicitarConfirmacaoParaImprimirComprovanteDePagamento,
           "Deseja imprimir o comprovante de pagamento?",
           [&] { ImprimirComprovanteDePagamentoDeVenda(numeroDaVenda); });
}

void frmCaixaPagar::ImprimirComprovanteDePagamentoDeVenda(std::int32_t numeroDaVenda) {
  frame::Procedimento(*this, "ImprimirComprovanteDePagamentoDeVenda", [&](Ponto& ponto) {
    lblMensagem.Caption = "Aguarde, reorganizando dados.";
    const frame::Espera espera(painel_);
    ponto = 2;
    const auto dados = LerDadosDoComprovante(numeroDaVenda);
    if (!dados) return;
    ponto = 4;
    drComprovanteDePagamentoDeVenda comprovante(platform::Desktop::Current().ReceiptPaper());
    comprovante.DataSource = dados->itens;
    PreencherComprovante(comprovante, dados->empresa, numeroDaVenda);
    ponto = 5;
    EmitirComprovante(comprovante, painel_);
  });
}

/// What the checkout itself knows: the customer, and how the sale was paid.
void frmCaixaPagar::PreencherComprovante(drComprovanteDePagamentoDeVenda& comprovante,
                                         const std::string& empresa, std::int32_t numeroDaVenda) {
  const Recebimento recebimento = LerRecebimento(msfgGrade);
  comprovante.Preencher(
      {.empresa = empresa,
       .venda = base::ToText(numeroDaVenda),
       .cliente = zvtxtCodigoDoCliente.Text() + " - " + zvtxtNomeOuRazaoSocialDoCliente.Text(),
       .endereco = venda_.EnderecoDoCliente,
       .canais = venda_.CanalDeComunicacaoDoCliente,
       .total = zvtxtValorDaVenda.Text(),
       .rotuloDoPago = recebimento.rotulo,
       .pago = base::FormatMoney(recebimento.pago)});
  comprovante.txtSaldoDevedor.Caption = base::FormatMoney(recebimento.aReceber);
  const Currency saldo = frame::LerCurrency(zvtxtSaldoDevedorOuTroco);
  if (saldo < Currency()) {
    comprovante.lblTroco.Caption = std::string(kTroco);
    comprovante.txtTroco.Caption = base::FormatMoney(-saldo);
  }
  const Currency credito = base::ToCurrency(lblCreditoParaOCliente.Tag());
  const bool temCredito = credito > Currency();
  comprovante.lblCredito.Visible = temCredito;
  comprovante.txtCredito.Visible = temCredito;
  comprovante.txtCredito.Caption = base::FormatMoney(credito);
}

void frmCaixaPagar::ImprimirNotasPromissorias(frame::Espera& espera) {
  if (!valores().ImprimirNotaPromissoria) return;
  for (std::int32_t linha = 1; linha < msfgGrade.Rows(); ++linha) {
    const std::string& forma = msfgGrade.TextMatrix(linha, kColunaForma);
    if (servicos::pagamento::CodigoDa(forma) != kACredito) continue;
    Imprimir(espera, valores().SolicitarConfirmacaoParaImprimirNotaPromissoria,
             "Deseja imprimir a nota promissória?", [&] { ImprimirNotaPromissoria(linha); });
  }
}

void frmCaixaPagar::ImprimirNotaPromissoria(std::int32_t linha) {
  auto nota = servicos::CriarServico<servicos::ZOVA_A_RelFin::clsRelFin>();
  nota->NomeDaAplicacao(valores().NomeDaAplicacao);
  nota->DadosDoUsuario(valores().DadosDoUsuario);
  nota->ImprimirNotaPromissoria(
      base::Format(platform::Desktop::Current().Now(), base::DateMask::kDayMonthYear),
      base::ToDate(msfgGrade.TextMatrix(linha, kColunaVencimento)),
      base::ToCurrency(msfgGrade.TextMatrix(linha, kColunaValor)),
      base::ToDouble(zvtxtCodigoDoCliente.Text()), valores().VisualizarImpressaoDaNotaPromissoria);
}

}  // namespace checkout
