#include "desktop/host/ScriptParts.h"
#include "desktop/host/Scripts.h"

namespace host::scripts {
namespace {

constexpr std::array kSignIn{
    Step{Act::kScreen, "frmEntrada"},
    Step{Act::kPicture, "", "entrada"},
    Step{Act::kType, "zvtxtUsuario", "{operador}"},
    Step{Act::kKey, "", "Tab"},
    Step{Act::kType, "zvtxtSenha", "errada"},
    Step{Act::kKey, "", "Enter"},
    Step{Act::kPicture, "", "entrada-recusada"},
    Step{Act::kType, "zvtxtSenha", "{senha do operador}"},
    Step{Act::kKey, "", "Enter"},
    Step{Act::kSettle, "frmCaixaOperar"},
    Step{Act::kClick, "zvcmbCaixas"},
    Step{Act::kPicture, "", "lista-de-caixas"},
    Step{Act::kKey, "", "Esc"},
};

/// A deposit without its amount, and a withdrawal that needs a supervisor.
constexpr std::array kMovements{
    Step{Act::kTool, "tbMenuCaixa", "Entradas"},
    Step{Act::kScreen, "frmCaixaEntradas"},
    Step{Act::kPicture, "", "entradas"},
    Step{Act::kClick, "zvcmdSalvar"},
    Step{Act::kBox},
    Step{Act::kPicture, "", "aviso"},
    Step{Act::kSettle, "frmCaixaEntradas"},
    Step{Act::kPicture, "", "campo-recusado"},
    Step{Act::kKey, "", "Esc"},
    Step{Act::kSettle, "frmCaixaOperar"},
    Step{Act::kTool, "tbMenuCaixa", "Saidas"},
    Step{Act::kScreen, "frmCaixaSaidas"},
    Step{Act::kType, "zvnumValorEmDinheiro", "40,00"},
    Step{Act::kType, "zvtxtObservacao", "Compra de café."},
    Step{Act::kPicture, "", "saidas"},
    Step{Act::kClick, "zvcmdSalvar"},
    Step{Act::kScreen, "frmCaixaAutorizarSaidasDoCaixa"},
    Step{Act::kType, "zvtxtUsuario", "{supervisor}"},
    Step{Act::kType, "zvtxtSenha", "{senha do supervisor}"},
    Step{Act::kPicture, "", "autorizacao"},
    Step{Act::kClick, "zvcmdOk"},
    Step{Act::kBox, "", "Saída efetuada."},
    Step{Act::kPicture, "", "saida-efetuada"},
    Step{Act::kSettle, "frmCaixaOperar"},
    Step{Act::kTool, "tbMenuCaixa", "ConsultarPrecos"},
    Step{Act::kPicture, "", "menu"},
    Step{Act::kKey, "", "Esc"},
};

/// A customer with lines of pre-sale; the wait, and what is told of the debts.
constexpr std::array kCustomer{
    Step{Act::kType, "zvfCodigoDoCliente", "5"},
    Step{Act::kKey, "", "Enter"},
    Step{Act::kWaitPanel, "", "aguarde"},
    Step{Act::kSettle, "frmCaixaOperar"},
    Step{Act::kPicture, "", "cliente-com-pre-venda"},
};

constexpr std::array kAnimal{
    Step{Act::kPick, "zvcmbAnimal", "Bob"},
};

constexpr std::array<std::string_view, 12> kBarcodes{
    "7890000010061", "7890000010122", "7890000010184", "7890000010245",
    "7890000010306", "7890000010368", "7890000010429", "7890000010481",
    "7890000010542", "7890000010603", "7890000010665", "7890000010726"};

constexpr std::array kFullGrid{
    Step{Act::kCell, "msfgGrade", "14"}, Step{Act::kPicture, "", "lista-cheia"},
    Step{Act::kClick, "zvcmdRemover"},   Step{Act::kBox},
    Step{Act::kPicture, "", "pergunta"}, Step{Act::kSettle, "frmCaixaOperar"},
};

constexpr std::array kPay{
    Step{Act::kClick, "zvcmdPagamento"},
    Step{Act::kSettle, "frmCaixaPagar"},
    Step{Act::kClick, "zvcmbFormaDePagamento"},
    Step{Act::kPicture, "", "formas-de-pagamento"},
    Step{Act::kKey, "", "Esc"},
    Step{Act::kPick, "zvcmbFormaDePagamento", "1-Dinheiro"},
    Step{Act::kType, "zvnumValor", "100,00"},
    Step{Act::kClick, "zvcmdAdicionar"},
    Step{Act::kSettle, "frmCaixaPagar"},
    Step{Act::kPick, "zvcmbFormaDePagamento", "6-A crédito"},
    Step{Act::kKey, "", "Tab"},
    Step{Act::kPicture, "", "pagamento"},
    Step{Act::kClick, "zvcmdCancelar"},
    Step{Act::kSettle, "frmCaixaOperar"},
};

constexpr std::array kClose{
    Step{Act::kClick, "zvcmdLimparCampos"},
    Step{Act::kSettle, "frmCaixaOperar"},
    Step{Act::kTool, "tbMenuCaixa", "Fechamento"},
    Step{Act::kScreen, "frmCaixaFechar"},
    Step{Act::kPicture, "", "fechamento"},
    Step{Act::kKey, "", "Esc"},
    Step{Act::kScreen, "frmCaixaOperar"},
    Step{Act::kFault, "",
         "A conexão com o banco de dados caiu e nada foi gravado. Aguarde um instante e tente de "
         "novo."},
    Step{Act::kScreen, "frmMensagemDeErro"},
    Step{Act::kPicture, "", "erro"},
    Step{Act::kKey, "", "Esc"},
    Step{Act::kSay, "", "Os retratos das telas estão em {pasta}."},
};

std::vector<Step> Scanned() {
  std::vector<Step> steps;
  for (const std::string_view barcode : kBarcodes) {
    steps.push_back({Act::kType, "zvfCodigoDeBarrasDoProduto", barcode});
    steps.push_back({Act::kKey, "", "Enter"});
    steps.push_back({Act::kSettle, "frmCaixaOperar"});
    steps.insert(steps.end(), kAdd.begin(), kAdd.end());
  }
  return steps;
}

}  // namespace

std::vector<Step> Portraits() {
  const std::vector<Step> scanned = Scanned();
  return Joined({kSignIn, kOpenRegister, kMovements, kCustomer, kFindService, kAnimal, kAdd,
                 kFindProduct, kAdd, scanned, kFullGrid, kPay, kClose});
}

}  // namespace host::scripts
