#include "checkout/frmCaixaPagar.h"
#include "frame/Mensagens.h"
#include "frame/Valores.h"
#include "frame/modFuncoes.h"
#include "sale/frmCaixaOperar.h"

namespace sale {

using base::Currency;
using frame::Ponto;
using frame::Procedimento;
using frame::valores;

void frmCaixaOperar::zvcmdPagamento_Click() {
  Procedimento(*this, "zvcmdPagamento_Click", [&](Ponto& ponto) {
    if (ValidarCampos() == 1) return;
    ponto = 2;
    if (frame::EmiteDocumentoFiscal()) {
      switch (CompletarDadosFiscais()) {
        case DadosFiscais::kFaltam:
          zvcmdPagamento.SetFocus();
          return;
        case DadosFiscais::kFalhaNaExportacao:
          zvcmdLimparCampos_Click();
          return;
        case DadosFiscais::kCompletos:
          break;
      }
    }
    ponto = 3;
    if (MontarExibirFormulario_Caixa_Pagar() != 0) return;
    ponto = 4;
    EncerrarVenda();
  });
}

void frmCaixaOperar::EncerrarVenda() {
  if (caixaDoCliente_.CodigoDoCliente() != 0) {
    frame::BloquearOuDesbloquearClienteParaOperacoesNosCaixas(caixaDoCliente_.CodigoDoCliente(),
                                                              frame::kDesbloquear);
  }
  std::int16_t falha = 0;
  LimparCampos(falha);
  if (falha == 1) return;
  frame::Espera espera(painelDeMensagem_);
  PreencherComboboxCaixas(falha);
  if (falha == 1) return;
  espera.Ocultar();
  caixas_.Escolher(valores().NumeroDoCaixa);
  EsperarCliente();
}

std::int16_t frmCaixaOperar::MontarExibirFormulario_Caixa_Pagar() {
  std::int16_t resultado = 1;
  Procedimento(*this, "MontarExibirFormulario_Caixa_Pagar", [&](Ponto& ponto) {
    checkout::frmCaixaPagar pagar;
    pagar.lblCliente.Caption = lblCliente.Caption();
    pagar.NumeroDaFichaClinica(base::ToInt32(base::Val(zvfNumeroDaFichaClinica.Text())));
    pagar.ApelidoOuNomeFantasiaDoCliente(zvfApelidoOuNomeFantasiaDoCliente.Text());
    pagar.NomeOuRazaoSocialDoCliente(zvfNomeOuRazaoSocialDoCliente.Text());
    pagar.EnderecoDoCliente(caixaDoCliente_.Cliente().endereco);
    pagar.CanalDeComunicacaoDoCliente(caixaDoCliente_.Cliente().canalDeComunicacao);
    pagar.CodigoDoCliente(base::ToInt32(base::ToDouble(zvfCodigoDoCliente.Text())));
    ponto = 2;
    const Currency percentual = totais_.Percentual();
    const bool distribuir = !percentual.IsZero();
    if (distribuir && AplicarDescontoERecalcularValoresDosItensDaNovaGradeDuplicada() == 1) {
      frame::Parar("Não foi possível aplicar o desconto informado.");
      return;
    }
    ponto = 3;
    pagar.ValorBruto(totais_.Bruto());
    pagar.ValorTotalDeDescontos(totais_.TotalDeDescontos());
    pagar.ValorLiquido(totais_.Liquido());
    pagar.GradeDeItensDaVendas(distribuir ? msfgGradeComDescontoAplicado : msfgGrade);
    pagar.PercentualTotalDeDesconto(percentual);
    const TotaisDaVenda::Resultado& resultadoDaVenda =
        distribuir ? totais_.ComDesconto() : totais_.SemDesconto();
    pagar.Custo(resultadoDaVenda.Custo);
    pagar.Comissao(resultadoDaVenda.Comissao);
    pagar.LucroEmValor(resultadoDaVenda.LucroEmValor);
    pagar.LucroEmPercentual(resultadoDaVenda.LucroEmPercentual);
    ponto = 4;
    Currency credito;
    if (!frame::RetornarCreditoDoCliente(caixaDoCliente_.CodigoDoCliente(), credito))
      credito = Currency();
    pagar.CreditoDoCliente(credito);
    ponto = 5;
    const frame::FundoEscuro fundo;
    Refresh();
    resultado = pagar.MontarExibirFormulario() == 0 ? 0 : 1;
  });
  return resultado;
}

}  // namespace sale
