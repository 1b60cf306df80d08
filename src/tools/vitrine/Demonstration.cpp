#include "tools/vitrine/ScriptParts.h"
#include "tools/vitrine/Scripts.h"

namespace vitrine::scripts {
namespace {

constexpr std::array kSignIn{
    Step{Act::kSay, "", "{administrador} entra."},
    Step{Act::kScreen, "frmEntrada"},
    Step{Act::kType, "zvtxtUsuario", "{administrador}"},
    Step{Act::kKey, "", "Enter"},
    Step{Act::kType, "zvtxtSenha", "{senha do administrador}"},
    Step{Act::kPicture, "", "entrada"},
    Step{Act::kKey, "", "Enter"},
    Step{Act::kSettle, "frmCaixaOperar"},
    Step{Act::kSay, "", "Escolhe o caixa da recepção e abre-o com 150,00 de fundo de troco."},
};

constexpr std::array kFindCustomer{
    Step{Act::kSay, "", "Procura o cliente de código 2."},
    Step{Act::kType, "zvfCodigoDoCliente", "2"},
    Step{Act::kKey, "", "Enter"},
    Step{Act::kSettle, "frmCaixaOperar"},
    Step{Act::kTell, "zvfNomeOuRazaoSocialDoCliente", "Cliente:"},
    Step{Act::kPicture, "", "cliente"},
    Step{Act::kSay, "", "Registra um serviço."},
};

constexpr std::array kToldService{
    Step{Act::kTell, "zvfNomeDoServico", "Serviço:"},
};

constexpr std::array kToProduct{
    Step{Act::kSay, "", "Lê o código de barras de um produto, com 5% de desconto."},
};

constexpr std::array kToldProduct{
    Step{Act::kTell, "zvfNomeDoProduto", "Produto:"},
};

constexpr std::array kPay{
    Step{Act::kTell, "zvnumLiquidoAPagar", "Líquido a pagar:"},
    Step{Act::kPicture, "", "venda"},
    Step{Act::kSay, "", "Recebe 100,00 no cartão de crédito e 250,00 em dinheiro."},
    Step{Act::kClick, "zvcmdPagamento"},
    Step{Act::kSettle, "frmCaixaPagar"},
    Step{Act::kPick, "zvcmbFormaDePagamento", "3-Cartão de crédito"},
    Step{Act::kType, "zvnumValor", "100,00"},
    Step{Act::kPicture, "", "pagamento"},
    Step{Act::kClick, "zvcmdAdicionar"},
    Step{Act::kSettle, "frmCaixaPagar"},
    Step{Act::kPick, "zvcmbFormaDePagamento", "1-Dinheiro"},
    Step{Act::kType, "zvnumValor", "250,00"},
    Step{Act::kClick, "zvcmdAdicionar"},
    Step{Act::kSettle, "frmCaixaPagar"},
    Step{Act::kTell, "zvtxtSaldoDevedorOuTroco", "Troco:"},
    Step{Act::kPicture, "", "troco"},
};

constexpr std::array kToCoupon{
    Step{Act::kSay, "", "Confirma. A venda tem um produto: informa o CPF do consumidor no cupom."},
    Step{Act::kClick, "zvcmdConfirmar"},
    Step{Act::kScreen, "frmCaixaInformarCPFCNPJ"},
};

/// With nobody in the exchange folder the cash desk says so after a while, and the sale is
/// registered without a coupon.
constexpr std::array kCouponAndReceipt{
    Step{Act::kSay, "", "Pede o cupom ao aplicativo fiscal pela pasta {pasta}/cfe."},
    Step{Act::kSay, "", "Sem resposta, o caixa desiste em menos de um minuto."},
    Step{Act::kAnswer, "", "sim"},
    Step{Act::kSettle, "frmVisualizacao"},
    Step{Act::kSay, "", "A venda está registrada. O comprovante aparece; é salvo em PDF."},
    Step{Act::kPicture, "", "comprovante"},
    Step{Act::kClick, "zvcmdSalvar"},
    Step{Act::kKey, "", "Esc"},
    Step{Act::kSettle, "frmCaixaOperar"},
    Step{Act::kPicture, "", "proximo-cliente"},
};

}  // namespace

std::vector<Step> Demonstration() {
  return Joined({kSignIn, kOpenRegister, kFindCustomer, kFindService, kToldService, kAdd,
                 kToProduct, kFindProduct, kToldProduct, kAdd, kPay, kToCoupon, kConsumersDocument,
                 kCouponAndReceipt});
}

}  // namespace vitrine::scripts
