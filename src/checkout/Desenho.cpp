#include "checkout/frmCaixaPagar.h"
#include "platform/Layout.h"

namespace checkout {

using platform::Look;

// Work goes from the choice of a tender down to the confirmation; what can only be read comes last
// in the tab order.
platform::Layout frmCaixaPagar::Desenho() {
  constexpr unsigned kAcimaEEsticado = platform::kHoldWidth;
  constexpr unsigned kAcimaADireita = platform::kHoldTopRight;
  constexpr unsigned kAbaixo = platform::kHoldBottomLeft;
  constexpr unsigned kAbaixoADireita = platform::kHoldBottomRight;
  return {
      .size = {10500, 7710},
      .places = {
          {zvTheme, {0, 0, 10500, 660}, "Pagamento", Look::kTitle, kAcimaEEsticado},

          {lblFormaDePagamento, {240, 3075, 4230, 210}, "Forma de pagamento*"},
          {zvcmbFormaDePagamento, {240, 3345, 4230, 450}},
          {lblValor, {4620, 3075, 1950, 210}, "Valor*"},
          {zvnumValor, {4620, 3345, 1950, 450}},
          {lblDataDeVencimento, {6720, 3075, 2100, 210}, "Data de vencimento*"},
          {zvdtpDataDeVencimento, {6720, 3345, 2100, 450}},
          {zvcmdAdicionar, {6720, 3330, 1290, 480}, "Adicionar"},

          {lblPagamentos, {240, 3945, 4230, 210}, "Pagamentos informados"},
          {msfgGrade, {240, 4215, 8655, 2010}, "", Look::kNormal, platform::kHoldAll},
          {zvcmdAlterar, {9045, 4215, 1215, 480}, "Alterar", Look::kNormal, kAcimaADireita},
          {zvcmdRemover, {9045, 4815, 1215, 480}, "Remover", Look::kNormal, kAcimaADireita},

          {picSaldoDevedorOuTroco, {7020, 1980, 3240, 930}, "", Look::kMainAmount, kAcimaADireita},
          {lblSaldoOuTroco, {180, 105, 2880, 210}, "Saldo a pagar", Look::kMainAmount},
          {zvtxtSaldoDevedorOuTroco, {180, 360, 2880, 465}, "", Look::kMainAmount},

          {picRodape,
           {0, 6855, 10500, 855},
           "",
           Look::kFooter,
           platform::kHoldLeft | kAbaixoADireita},
          {zvcmdCancelar, {7440, 195, 1320, 480}, "Cancelar", Look::kNormal, kAcimaADireita},
          {zvcmdConfirmar, {8880, 195, 1380, 480}, "Confirmar", Look::kPrimary, kAcimaADireita},

          {lblCliente, {240, 855, 2610, 210}, "Cliente*"},
          {zvtxtApelidoOuNomeFantasiaDoCliente, {240, 1125, 2610, 450}},
          {lblNomeOuRazaoSocialDoCliente, {3000, 855, 3660, 210}, "Nome ou razão social"},
          {zvtxtNomeOuRazaoSocialDoCliente,
           {3000, 1125, 3660, 450},
           "",
           Look::kNormal,
           kAcimaEEsticado},
          {lblCodigoDoCliente, {6810, 855, 1350, 210}, "Código", Look::kNormal, kAcimaADireita},
          {zvtxtCodigoDoCliente, {6810, 1125, 1350, 450}, "", Look::kNormal, kAcimaADireita},
          {lblCreditoDoCliente,
           {8310, 855, 1950, 210},
           "Crédito do cliente",
           Look::kNormal,
           kAcimaADireita},
          {zvnumCreditoDoCliente, {8310, 1125, 1950, 450}, "", Look::kNormal, kAcimaADireita},

          {picValorDaVenda, {240, 1980, 3240, 930}, "", Look::kCard},
          {lblValorDaVenda, {180, 105, 2880, 210}, "Valor da venda"},
          {zvtxtValorDaVenda, {180, 360, 2880, 465}, "", Look::kAmount},
          {picValorPago, {3630, 1980, 3240, 930}, "", Look::kCard},
          {lblValorPago, {180, 105, 2880, 210}, "Valor pago"},
          {zvtxtValorPago, {180, 360, 2880, 465}, "", Look::kAmount},

          {picMensagem, {3000, 2700, 4500, 1200}, "", Look::kWait},
          {lblMensagem,
           {150, 450, 4200, 300},
           "Aguarde, registrando o pagamento",
           Look::kWait,
           platform::kHoldAll},

          // These name no field.
          {lblInformacoesDaVenda, {240, 1680, 4230, 210}, "Informações da venda"},
          {lblCreditoParaOCliente, {240, 6435, 8655, 255}, "", Look::kNormal, kAbaixo},
          {lblObservacaoDeCamposObrigatorios,
           {240, 300, 4230, 255},
           "* Campos obrigatórios",
           Look::kHint},
      }};
}

}  // namespace checkout
