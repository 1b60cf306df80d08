#include "base/DateTime.h"
#include "base/RuntimeError.h"
#include "checkout/GradeDePagamentos.h"
#include "checkout/Observacao.h"
#include "checkout/frmCaixaPagar.h"
#include "frame/CamposNumericos.h"
#include "frame/FormasDePagamento.h"
#include "frame/Mensagens.h"
#include "frame/Procedimento.h"
#include "frame/Valores.h"
#include "frame/servicos/ZOVA_A_RelFin.clsRelFin.h"
#include "frame/servicos/ZOVA_N_Caixa.clsCaixa.h"
#include "platform/Desktop.h"

namespace checkout {

using base::Currency;
using frame::LerCurrency;
using frame::Ponto;
using frame::valores;
using servicos::ZOVA_N_Caixa::clsCaixa;

namespace {

/// Whether a line of the sale is a product; services alone never need a fiscal document.
bool TemProduto(const base::GradeLida& itens) {
  constexpr double kProduto = 2;
  for (std::int32_t linha = 1; linha < itens.Rows(); ++linha) {
    if (base::Val(itens.TextMatrix(linha, itens.Cols() - 1)) == kProduto) return true;
  }
  return false;
}

/// Prints a document of the sale, asking first where the company wants that.
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

}  // namespace

void frmCaixaPagar::zvcmdConfirmar_Click() {
  // Once the service has answered, the checkout ends on every road out of here, that of an error in
  // the papers included: a screen left open would register the sale a second time.
  struct Encerramento {
    ~Encerramento() {
      if (!respondido) return;
      tela.PagamentoConfirmado = registrada && !tela.PagamentoCancelado;
      tela.Unload();
    }
    frmCaixaPagar& tela;
    bool respondido = false;
    bool registrada = false;
  } encerramento{*this};
  const CommandsHeld semComandos(*this);
  frame::Procedimento(", frmCaixaPagar, zvcmdConfirmar_Click, Ponto: ", [&](Ponto& ponto) {
    if (ValidarCampos() == 1) return;
    ponto = 2;
    frame::Espera espera(painel_);
    ponto = 3;
    if (!EmitirDocumentoFiscal(espera)) return;
    ponto = 4;
    auto caixa = servicos::CriarServico<clsCaixa>();
    PreencherVenda(*caixa);
    ponto = 5;
    const std::int16_t resultado = caixa->RegistrarPagamento();
    encerramento.respondido = true;
    encerramento.registrada = resultado == servicos::kSucesso;
    if (!encerramento.registrada) {
      espera.Ocultar();
      frame::Aceitar(resultado, *caixa);
      return;
    }
    ponto = 6;
    const std::int32_t numeroDaVenda = caixa->NumeroDaVenda();
    caixa.reset();
    ponto = 7;
    ImprimirComprovante(espera, numeroDaVenda);
    ponto = 8;
    ImprimirNotasPromissorias(espera);
  });
}

/// Issues the fiscal coupon of a sale with products. False: the confirmation stops here, with the
/// tenders kept. A sale never carries the key of an earlier one.
bool frmCaixaPagar::EmitirDocumentoFiscal(frame::Espera& espera) {
  valores().ChaveSAT.clear();
  if (!frame::EmiteDocumentoFiscal()) return true;
  if (!TemProduto(base::Required(venda_.GradeDeItensDaVendas))) return true;
  espera.Ocultar();
  frame::Parar(
      "A emissão do documento fiscal (CF-e SAT) ainda não está disponível: a venda não foi "
      "registrada e os pagamentos foram mantidos.");
  return false;
}

void frmCaixaPagar::PreencherVenda(clsCaixa& caixa) {
  caixa.GradeDePagamentosEfetuados(&msfgGrade);
  // Read up to the comma: a change below 1,00 counts as none.
  const bool temTroco = base::Val(zvtxtSaldoDevedorOuTroco.Text()) < 0;
  caixa.Troco(temTroco ? LerCurrency(zvtxtSaldoDevedorOuTroco) : Currency());
  caixa.CreditoAnteriorDoCliente(LerCurrency(zvnumCreditoDoCliente));
  const Currency credito = base::ToCurrency(lblCreditoParaOCliente.Tag());
  caixa.CreditoParaOCliente(credito > Currency() ? credito : Currency());
  caixa.NumeroDoCaixa(valores().NumeroDoCaixa);
  caixa.Operador(base::ToText(frame::CampoDaSessao("NomeDeUsuario")));
  caixa.CodigoDoCliente(zvtxtCodigoDoCliente.Text());
  caixa.ApelidoOuNomeFantasiaDoCliente(zvtxtApelidoOuNomeFantasiaDoCliente.Text());
  caixa.NomeOuRazaoSocialDoCliente(zvtxtNomeOuRazaoSocialDoCliente.Text());
  caixa.ValorBruto(venda_.ValorBruto);
  caixa.ValorTotalDeDescontos(venda_.ValorTotalDeDescontos);
  caixa.ValorLiquido(venda_.ValorLiquido);
  const base::GradeLida& itens = base::Required(venda_.GradeDeItensDaVendas);
  caixa.GradeDeItensDaVenda(&itens);
  caixa.Custo(venda_.Custo);
  caixa.Comissao(venda_.Comissao);
  caixa.LucroEmValor(venda_.LucroEmValor);
  caixa.LucroEmPercentual(venda_.LucroEmPercentual);
  caixa.NumeroDaFichaClinica(venda_.NumeroDaFichaClinica);
  caixa.Observacao(ObservacaoDaVenda(zvtxtCodigoDoCliente.Text(),
                                     zvtxtNomeOuRazaoSocialDoCliente.Text(),
                                     valores().CPFCNPJDoCliente, itens));
  if (!valores().ChaveSAT.empty()) caixa.ChaveSAT(valores().ChaveSAT);
  caixa.DadosDoUsuario(valores().DadosDoUsuario);
}

void frmCaixaPagar::ImprimirComprovante(frame::Espera& espera, std::int32_t numeroDaVenda) {
  if (!valores().ImprimirComprovanteDePagamento) return;
  Imprimir(espera, valores().SolicitarConfirmacaoParaImprimirComprovanteDePagamento,
           "Deseja imprimir o comprovante de pagamento?",
           [&] { ImprimirComprovanteDePagamentoDeVenda(numeroDaVenda); });
}

void frmCaixaPagar::ImprimirComprovanteDePagamentoDeVenda(std::int32_t numeroDaVenda) {
  frame::Procedimento(", frmCaixaPagar, ImprimirComprovanteDePagamentoDeVenda, Ponto: ",
                      [&](Ponto&) {
                        frame::Informar(
                            "A impressão do comprovante de pagamento ainda não está disponível: a "
                            "venda " +
                            base::ToText(numeroDaVenda) + " foi registrada.");
                      });
}

void frmCaixaPagar::ImprimirNotasPromissorias(frame::Espera& espera) {
  if (!valores().ImprimirNotaPromissoria) return;
  for (std::int32_t linha = 1; linha < msfgGrade.Rows(); ++linha) {
    const std::string& forma = msfgGrade.TextMatrix(linha, kColunaForma);
    if (frame::CodigoDaForma(forma) != frame::kACredito) continue;
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
