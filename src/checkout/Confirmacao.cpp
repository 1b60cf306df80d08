#include "base/RuntimeError.h"
#include "checkout/GradeDePagamentos.h"
#include "checkout/Observacao.h"
#include "checkout/frmCaixaPagar.h"
#include "frame/CamposNumericos.h"
#include "frame/Mensagens.h"
#include "frame/Procedimento.h"
#include "frame/Valores.h"
#include "frame/servicos/ZOVA_N_Caixa.clsCaixa.h"

namespace checkout {

using base::Currency;
using frame::LerCurrency;
using frame::Ponto;
using frame::valores;
using servicos::ZOVA_N_Caixa::clsCaixa;

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
  frame::Procedimento(*this, "zvcmdConfirmar_Click", [&](Ponto& ponto) {
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

}  // namespace checkout
