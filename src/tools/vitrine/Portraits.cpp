#include "tools/vitrine/ScriptParts.h"
#include "tools/vitrine/Scripts.h"

namespace vitrine::scripts {
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
};

/// Prices to look at, and the choice among several customers.
constexpr std::array kPickLists{
    Step{Act::kMenu, "", "Produtos"},
    Step{Act::kScreen, "frmPesquisaDeProdutos"},
    Step{Act::kType, "zvfndCodigoInternoOuNome", "ração"},
    Step{Act::kKey, "", "Enter"},
    Step{Act::kPicture, "", "lista-de-produtos"},
    Step{Act::kKey, "", "Esc"},
    Step{Act::kScreen, "frmCaixaOperar"},
    Step{Act::kTool, "tbMenuCaixa", "ConsultarPrecos"},
    Step{Act::kMenu, "", "Serviços"},
    Step{Act::kScreen, "frmPesquisaDeServicos"},
    Step{Act::kPick, "zvcmbTiposDeServicos", "(Todos)"},
    Step{Act::kType, "zvfndCodigoOuNome", "consulta"},
    Step{Act::kKey, "", "Enter"},
    Step{Act::kPicture, "", "lista-de-servicos"},
    Step{Act::kKey, "", "Esc"},
    Step{Act::kScreen, "frmCaixaOperar"},
    Step{Act::kType, "zvfNomeOuRazaoSocialDoCliente", "mar"},
    Step{Act::kKey, "", "Enter"},
    Step{Act::kScreen, "frmPesquisaDeClientes"},
    Step{Act::kKey, "", "Down"},
    Step{Act::kPicture, "", "lista-de-clientes"},
    Step{Act::kKey, "", "Esc"},
    Step{Act::kSettle, "frmCaixaOperar"},
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
    Step{Act::kCell, "msfgGrade", "14"},
    Step{Act::kPicture, "", "lista-cheia"},
    Step{Act::kClick, "zvcmdDetalhes"},
    Step{Act::kSettle, "frmExibirDetalhesDoItemDaVenda"},
    Step{Act::kPicture, "", "detalhes-do-item"},
    Step{Act::kKey, "", "Esc"},
    Step{Act::kSettle, "frmCaixaOperar"},
    Step{Act::kClick, "zvcmdRemover"},
    Step{Act::kBox},
    Step{Act::kPicture, "", "pergunta"},
    Step{Act::kSettle, "frmCaixaOperar"},
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

/// From another customer to the checkout, once with a product and once without.
constexpr std::array kNextCustomer{
    Step{Act::kClick, "zvcmdLimparCampos"},
    Step{Act::kSettle, "frmCaixaOperar"},
    Step{Act::kType, "zvfCodigoDoCliente", "2"},
    Step{Act::kKey, "", "Enter"},
    Step{Act::kSettle, "frmCaixaOperar"},
    Step{Act::kPick, "zvcmbTiposDeServicos", "Clínicos"},
    Step{Act::kSettle, "frmCaixaOperar"},
    Step{Act::kType, "zvfCodigoDoServico", "1"},
    Step{Act::kKey, "", "Enter"},
    Step{Act::kSettle, "frmCaixaOperar"},
    Step{Act::kClick, "zvcmdAdicionar"},
    Step{Act::kSettle, "frmCaixaOperar"},
};

constexpr std::array kTwoProducts{
    Step{Act::kClick, "optProduto"},
    Step{Act::kType, "zvfCodigoDeBarrasDoProduto", "7890000010030"},
    Step{Act::kKey, "", "Enter"},
    Step{Act::kSettle, "frmCaixaOperar"},
    Step{Act::kType, "zvnumPercentualDeDescontoPorItem", "5,00"},
    Step{Act::kKey, "", "Tab"},
    Step{Act::kClick, "zvcmdAdicionar"},
    Step{Act::kSettle, "frmCaixaOperar"},
    Step{Act::kType, "zvfCodigoDeBarrasDoProduto", "7890000010481"},
    Step{Act::kKey, "", "Enter"},
    Step{Act::kSettle, "frmCaixaOperar"},
    Step{Act::kClick, "zvcmdAdicionar"},
    Step{Act::kSettle, "frmCaixaOperar"},
};

/// Part of it in cash, the rest on credit.
constexpr std::array kPayOnCredit{
    Step{Act::kClick, "zvcmdPagamento"},
    Step{Act::kSettle, "frmCaixaPagar"},
    Step{Act::kPick, "zvcmbFormaDePagamento", "1-Dinheiro"},
    Step{Act::kType, "zvnumValor", "100,00"},
    Step{Act::kClick, "zvcmdAdicionar"},
    Step{Act::kSettle, "frmCaixaPagar"},
    Step{Act::kPick, "zvcmbFormaDePagamento", "6-A crédito"},
    Step{Act::kKey, "", "Tab"},
    Step{Act::kType, "zvdtpDataDeVencimento", "{vencimento}"},
    Step{Act::kClick, "zvcmdAdicionar"},
    Step{Act::kSettle, "frmCaixaPagar"},
    Step{Act::kClick, "zvcmdConfirmar"},
    Step{Act::kScreen, "frmCaixaInformarCPFCNPJ"},
};

/// No fiscal application answers: the cash desk takes its time, less than a minute, until it gives
/// up. The sale is registered all the same, and has its papers.
constexpr std::array kPapers{
    Step{Act::kAnswer, "", "não"},
    Step{Act::kBox},
    Step{Act::kPicture, "", "aplicativo-fiscal-parado"},
    Step{Act::kSettle, "frmVisualizacao"},
    Step{Act::kPicture, "", "comprovante"},
    Step{Act::kKey, "", "Esc"},
    Step{Act::kBox, "", "Deseja imprimir a nota promissória?"},
    Step{Act::kAnswer, "", "sim"},
    Step{Act::kScreen, "frmVisualizacao"},
    Step{Act::kPicture, "", "nota-promissoria"},
    Step{Act::kKey, "", "Esc"},
    Step{Act::kSettle, "frmCaixaOperar"},
};

/// The receipt of a sale on the roll; and the customer is at the counter once more.
constexpr std::array kRoll{
    Step{Act::kPaper, "", "Bobina80"},
    Step{Act::kClick, "zvcmdPagamento"},
    Step{Act::kSettle, "frmCaixaPagar"},
    Step{Act::kPick, "zvcmbFormaDePagamento", "8-PIX"},
    Step{Act::kClick, "zvcmdAdicionar"},
    Step{Act::kSettle, "frmCaixaPagar"},
    Step{Act::kClick, "zvcmdConfirmar"},
    Step{Act::kScreen, "frmVisualizacao"},
    Step{Act::kPicture, "", "comprovante-bobina"},
    Step{Act::kKey, "", "Esc"},
    Step{Act::kSettle, "frmCaixaOperar"},
    Step{Act::kPaper, "", "A4"},
    Step{Act::kType, "zvfCodigoDoCliente", "2"},
    Step{Act::kKey, "", "Enter"},
    Step{Act::kSettle, "frmCaixaOperar"},
};

/// The customer's history, their estimates and a new one, with a product picked from the list.
constexpr std::array kHistoryAndEstimates{
    Step{Act::kTool, "tbMenuCaixa", "ConsultarHistoricoDeVendas"},
    Step{Act::kScreen, "frmHistoricoDeVendas"},
    Step{Act::kPicture, "", "historico"},
    Step{Act::kKey, "", "Esc"},
    Step{Act::kScreen, "frmCaixaOperar"},
    Step{Act::kTool, "tbMenuCaixa", "Orcamentos"},
    Step{Act::kScreen, "frmOrcamentos"},
    Step{Act::kPicture, "", "orcamentos"},
    Step{Act::kClick, "zvcmdNovo"},
    Step{Act::kScreen, "frmOrcamento"},
    Step{Act::kType, "zvfItem", "1"},
    Step{Act::kKey, "", "Enter"},
    Step{Act::kKey, "", "Enter"},
    Step{Act::kClick, "optProduto"},
    Step{Act::kType, "zvfItem", "adultos"},
    Step{Act::kKey, "", "Enter"},
    Step{Act::kScreen, "frmPesquisaDeProdutos"},
    Step{Act::kKey, "", "Down"},
    Step{Act::kKey, "", "Enter"},
    Step{Act::kScreen, "frmOrcamento"},
    Step{Act::kKey, "", "Enter"},
    Step{Act::kType, "zvnumDesconto", "5,00"},
    Step{Act::kType, "zvtxtObservacao", "Sem medicamentos."},
    Step{Act::kPicture, "", "orcamento"},
    Step{Act::kClick, "zvcmdSalvar"},
    Step{Act::kBox, "", "Deseja imprimir o orçamento?"},
    Step{Act::kAnswer, "", "sim"},
    Step{Act::kScreen, "frmVisualizacao"},
    Step{Act::kPicture, "", "orcamento-impresso"},
    Step{Act::kKey, "", "Esc"},
    Step{Act::kScreen, "frmOrcamentos"},
    Step{Act::kKey, "", "Esc"},
    Step{Act::kScreen, "frmCaixaOperar"},
};

/// A receipt once more, what a sale was made of, a sale that is cancelled and may be restored.
constexpr std::array kPastSales{
    Step{Act::kTool, "tbMenuCaixa", "Comprovantes"},
    Step{Act::kScreen, "frmCaixaComprovanteDeVenda"},
    Step{Act::kType, "zvtxtLocalizar", "ana"},
    Step{Act::kPicture, "", "comprovantes"},
    Step{Act::kClick, "zvcmdExibirItensDaVenda"},
    Step{Act::kScreen, "frmCaixaItensDaVenda"},
    Step{Act::kPicture, "", "itens-da-venda"},
    Step{Act::kKey, "", "Esc"},
    Step{Act::kScreen, "frmCaixaComprovanteDeVenda"},
    Step{Act::kClick, "zvcmdEmitirComprovanteDeVenda"},
    Step{Act::kSettle, "frmVisualizacao"},
    Step{Act::kPicture, "", "segunda-via"},
    Step{Act::kKey, "", "Esc"},
    Step{Act::kSettle, "frmCaixaComprovanteDeVenda"},
    Step{Act::kKey, "", "Esc"},
    Step{Act::kSettle, "frmCaixaOperar"},
    Step{Act::kTool, "tbMenuCaixa", "CancelarVenda"},
    Step{Act::kScreen, "frmCaixaCancelarVenda"},
    Step{Act::kType, "zvtxtLocalizar", "2"},
    Step{Act::kType, "zvtxtMotivoDoCancelamento", "O cliente desistiu da compra."},
    Step{Act::kPicture, "", "cancelar-venda"},
    Step{Act::kClick, "zvcmdConfirmar"},
    Step{Act::kScreen, "frmCaixaAutorizarCancelarVendas"},
    Step{Act::kType, "zvtxtUsuario", "{supervisor}"},
    Step{Act::kType, "zvtxtSenha", "{senha do supervisor}"},
    Step{Act::kClick, "zvcmdOk"},
    Step{Act::kBox, "", "Venda cancelada."},
    Step{Act::kPicture, "", "venda-cancelada"},
    Step{Act::kSettle, "frmCaixaOperar"},
    Step{Act::kTool, "tbMenuCaixa", "DesfazerCancelamento"},
    Step{Act::kScreen, "frmCaixaDesfazerCancelamento"},
    Step{Act::kPicture, "", "desfazer-cancelamento"},
    Step{Act::kKey, "", "Esc"},
    Step{Act::kSettle, "frmCaixaOperar"},
};

constexpr std::array kReports{
    Step{Act::kTool, "tbMenuCaixa", "Relatorios"},
    Step{Act::kScreen, "frmCaixaRelatoriosDeCaixas"},
    Step{Act::kPick, "zvcmbCaixas", "Todos"},
    Step{Act::kPicture, "", "relatorios"},
    Step{Act::kClick, "zvcmdImprimir"},
    Step{Act::kSettle, "frmVisualizacao"},
    Step{Act::kPicture, "", "resumo-de-caixas"},
    Step{Act::kKey, "", "Esc"},
    Step{Act::kSettle, "frmCaixaRelatoriosDeCaixas"},
    Step{Act::kClick, "optTipoDeRelatorio(1)"},
    Step{Act::kClick, "zvcmdImprimir"},
    Step{Act::kSettle, "frmVisualizacao"},
    Step{Act::kPicture, "", "lancamentos-de-caixas"},
    Step{Act::kKey, "", "Esc"},
    Step{Act::kSettle, "frmCaixaRelatoriosDeCaixas"},
    Step{Act::kClick, "zvcmdRetratoDoDia"},
    Step{Act::kSettle, "frmVisualizacao"},
    Step{Act::kPicture, "", "retrato-do-dia"},
    Step{Act::kKey, "", "Esc"},
    Step{Act::kSettle, "frmCaixaRelatoriosDeCaixas"},
    Step{Act::kKey, "", "Esc"},
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
  return Joined({kSignIn,
                 kOpenRegister,
                 kMovements,
                 kPickLists,
                 kCustomer,
                 kFindService,
                 kAnimal,
                 kAdd,
                 kFindProduct,
                 kAdd,
                 scanned,
                 kFullGrid,
                 kPay,
                 kNextCustomer,
                 kTwoProducts,
                 kPayOnCredit,
                 kConsumersDocument,
                 kPapers,
                 kNextCustomer,
                 kRoll,
                 kHistoryAndEstimates,
                 kPastSales,
                 kReports,
                 kClose});
}

}  // namespace vitrine::scripts
