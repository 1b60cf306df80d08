#include "sale/TelaDoBalcao.h"

#include "frame/servicos/Codigos.h"
#include "platform/Layout.h"
#include "sale/LinhaDeVenda.h"
#include "sale/Menu.h"

namespace sale {

using namespace platform;

TelaDoBalcao::TelaDoBalcao() : Form("frmCaixaOperar") {
  for (const BotaoDoMenu& botao : kBotoesDoMenuCaixa) {
    tbMenuCaixa.Add(botao.chave, botao.legenda, "menu_caixa_" + std::string(botao.chave));
  }
  for (std::size_t i = 0; i < kColunasDaVenda.size(); ++i) {
    mnuListaDeColunas.push_back(std::make_unique<MenuItem>(
        *this, "mnuListaDeColunas(" + std::to_string(i) + ")", kColunasDaVenda[i].titulo));
    mnuGrade.Add(*mnuListaDeColunas.back());
  }
}

// The design of the counter at 1024 by 768 pixels, 15 twips to the pixel, in tab order. The strip
// is 2850 twips wide; a product's name takes the 8355 of a service's name and code together.
void TelaDoBalcao::Desenhar() {
  zvfCodigoDoCliente.Style.Assign(ZVFind::kCodeStyle);
  zvfNumeroDaFichaClinica.Style.Assign(ZVFind::kCodeStyle);
  zvfCodigoDoServico.Style.Assign(ZVFind::kCodeStyle);
  zvfNumeroDaFichaClinica.MaxLength.Assign(9);
  Caption.Assign("Caixa");
  optServico.Preset();
  for (Control* oculto :
       {static_cast<Control*>(&msfgGradeComDescontoAplicado), static_cast<Control*>(&picMensagem),
        static_cast<Control*>(&lblItensDaPreVenda), static_cast<Control*>(&lblSituacaoDoCaixa)}) {
    oculto->Visible.Assign(false);
  }
  // A sale of nothing, until the first customer: every sum can be read from the start.
  for (ZVNumberBox* soma :
       {&zvnumTotal, &zvnumValorTotalDeDescontoItensDaGrade, &zvnumPercentualTotalDeDesconto,
        &zvnumValorTotalDeDesconto, &zvnumLiquidoAPagar}) {
    soma->Text.Assign("0,00");
  }
  msfgGrade.standsBack = [this](std::int32_t linha) {
    return msfgGrade.Cols() > kColunaTipoDeVenda &&
           msfgGrade.TextMatrix(linha, kColunaTipoDeVenda) == std::to_string(servicos::kPreVenda);
  };
  for (ZVNumberBox* soma :
       {&zvnumTotal, &zvnumValorTotalDeDescontoItensDaGrade, &zvnumLiquidoAPagar}) {
    soma->tabStop = false;
  }

  Arrange(
      {.size = {15360, 11520},
       .places = {
           {picTituloCaixa,
            {0, 0, 2850, 11520},
            "",
            Look::kStrip,
            kHoldLeft | kHoldTop | kHoldBottom},
           {lblCaixa, {210, 135, 2430, 300}, "CAIXA", Look::kTitle},
           {lblNomeDoCaixa, {180, 705, 2490, 210}, "Nome do caixa"},
           {zvcmbCaixas, {180, 960, 2490, 450}},
           {lblSituacaoDoCaixa, {180, 1500, 2490, 300}, "", Look::kBadge},
           {tbMenuCaixa, {90, 1950, 2670, 7350}},
           {lblAvisoDoCaixa, {3150, 360, 11910, 480}, "", Look::kTitle, kHoldWidth},
           {shpMolduraDaAreaDeTrabalho, {2850, 0, 12510, 11520}, "", Look::kNormal, kHoldAll},
           {picAreaDeTrabalho, {2850, 0, 12510, 11520}, "", Look::kNormal, kHoldAll},

           {picCliente, {180, 150, 12150, 1065}, "", Look::kCard, kHoldWidth},
           {lblNumeroDaFichaClinica, {180, 150, 1440, 210}, "Ficha clínica"},
           {zvfNumeroDaFichaClinica, {180, 405, 1440, 450}},
           {lblCliente, {1770, 150, 1650, 210}, "Cliente*"},
           {lblApelidoOuNomeFantasiaDoCliente, {3420, 150, 2340, 210}, "Apelido ou nome fantasia"},
           {zvfApelidoOuNomeFantasiaDoCliente, {1770, 405, 3930, 450}},
           {lblNomeOuRazaoSocialDoCliente,
            {5850, 150, 4500, 210},
            "Nome ou razão social",
            Look::kNormal,
            kHoldWidth},
           {zvfNomeOuRazaoSocialDoCliente, {5850, 405, 4500, 450}, "", Look::kNormal, kHoldWidth},
           {lblCodigoDoCliente, {10500, 150, 1470, 210}, "Código", Look::kNormal, kHoldTopRight},
           {zvfCodigoDoCliente, {10500, 405, 1470, 450}, "", Look::kNormal, kHoldTopRight},

           {picItem, {180, 1365, 12150, 2325}, "", Look::kCard, kHoldWidth},
           {optServico, {180, 150, 1650, 420}, "Serviço"},
           {optProduto, {1830, 150, 1650, 420}, "Produto"},
           {lblTipoDeServicoOuCodigoDeBarrasDoProduto, {180, 675, 3285, 210}, "Tipo de serviço"},
           {zvcmbTiposDeServicos, {180, 945, 3285, 450}},
           {zvfCodigoDeBarrasDoProduto, {180, 945, 3285, 450}},
           {lblNomeDoServicoOuNomeDoProduto,
            {3615, 675, 6705, 210},
            "Nome do serviço",
            Look::kNormal,
            kHoldWidth},
           {zvfNomeDoServico, {3615, 945, 6705, 450}, "", Look::kNormal, kHoldWidth},
           {zvfNomeDoProduto, {3615, 945, 8355, 450}, "", Look::kNormal, kHoldWidth},
           {lblCodigoDoServico, {10470, 675, 1500, 210}, "Código", Look::kNormal, kHoldTopRight},
           {zvfCodigoDoServico, {10470, 945, 1500, 450}, "", Look::kNormal, kHoldTopRight},
           {lblNomeDoAnimalOuCodigoInternoDoProduto, {180, 1470, 3285, 210}, "Nome do animal"},
           {zvcmbAnimal, {180, 1725, 3285, 450}},
           {zvfCodigoInternoDoProduto, {180, 1725, 3285, 450}},
           {lblComissionado, {3615, 1470, 1635, 210}, "Comissionado", Look::kNormal, kHoldWidth},
           {zvcmbComissionado, {3615, 1725, 1635, 450}, "", Look::kNormal, kHoldWidth},
           {lblQuantidade, {5355, 1470, 1005, 210}, "Quantidade", Look::kNormal, kHoldTopRight},
           {zvnumQuantidade, {5355, 1725, 975, 450}, "", Look::kNormal, kHoldTopRight},
           {lblValorUnitario,
            {6435, 1470, 1215, 210},
            "Valor unitário",
            Look::kNormal,
            kHoldTopRight},
           {zvnumValorUnitario, {6435, 1725, 1200, 450}, "", Look::kNormal, kHoldTopRight},
           {lblPercentualDeDescontoPorItem,
            {7740, 1470, 900, 210},
            "(%) Desc.",
            Look::kNormal,
            kHoldTopRight},
           {zvnumPercentualDeDescontoPorItem,
            {7740, 1725, 900, 450},
            "",
            Look::kNormal,
            kHoldTopRight},
           {lblValorDeDescontoPorItem,
            {8745, 1470, 1665, 210},
            "Valor do desconto",
            Look::kNormal,
            kHoldTopRight},
           {zvnumValorDeDescontoPorItem, {8745, 1725, 1590, 450}, "", Look::kNormal, kHoldTopRight},
           {zvcmdAdicionar,
            {10470, 1725, 1500, 450},
            "Adicionar",
            Look::kPrimary,
            kHoldTopRight,
            "Adicionar o item à venda"},

           {msfgGrade, {180, 3840, 12150, 5385}, "", Look::kNormal, kHoldAll},
           {msfgGradeComDescontoAplicado, {180, 3840, 12150, 5385}},
           {zvcmdAlterar,
            {180, 9375, 1200, 420},
            "Alterar",
            Look::kNormal,
            kHoldBottomLeft,
            "Alterar o item selecionado"},
           {zvcmdRemover,
            {1500, 9375, 1200, 420},
            "Remover",
            Look::kNormal,
            kHoldBottomLeft,
            "Remover o item selecionado"},
           {zvcmdDetalhes,
            {2820, 9375, 1200, 420},
            "Detalhes",
            Look::kNormal,
            kHoldBottomLeft,
            "Exibir detalhes do item selecionado"},
           {lblItensDaPreVenda,
            {4200, 9465, 4200, 240},
            "Itens de pré-venda: somente consulta no caixa.",
            Look::kHint,
            kHoldBottomLeft},

           {lblTotal, {180, 10005, 1800, 210}, "Subtotal", Look::kNormal, kHoldBottomLeft},
           {zvnumTotal, {180, 10275, 1800, 450}, "", Look::kNormal, kHoldBottomLeft},
           {lblValorTotalDeDescontoItensDaGrade,
            {2130, 10005, 1800, 210},
            "Descontos dos itens",
            Look::kNormal,
            kHoldBottomLeft},
           {zvnumValorTotalDeDescontoItensDaGrade,
            {2130, 10275, 1800, 450},
            "",
            Look::kNormal,
            kHoldBottomLeft},
           {lblPercentualTotalDeDesconto,
            {4080, 10005, 2100, 210},
            "(%) Desconto da venda",
            Look::kNormal,
            kHoldBottomLeft},
           {zvnumPercentualTotalDeDesconto,
            {4080, 10275, 1950, 450},
            "",
            Look::kNormal,
            kHoldBottomLeft},
           {lblValorTotalDeDesconto,
            {6210, 10005, 1950, 210},
            "Desconto da venda",
            Look::kNormal,
            kHoldBottomLeft},
           {zvnumValorTotalDeDesconto,
            {6210, 10275, 1950, 450},
            "",
            Look::kNormal,
            kHoldBottomLeft},
           {picLiquidoAPagar, {8520, 9375, 3810, 1125}, "", Look::kMainAmount, kHoldBottomRight},
           {lblLiquidoAPagar, {210, 150, 3390, 240}, "Líquido a pagar", Look::kMainAmount},
           {zvnumLiquidoAPagar, {210, 390, 3390, 660}, "", Look::kMainAmount},
           {zvcmdPagamento,
            {8520, 10620, 3810, 735},
            "Pagamento",
            Look::kPrimary,
            kHoldBottomRight,
            "Receber o pagamento da venda"},
           {lblObservacaoDeCamposObrigatorios,
            {2130, 11025, 3000, 240},
            "* Campos obrigatórios",
            Look::kHint,
            kHoldBottomLeft},
           {zvcmdLimparCampos,
            {180, 10935, 1800, 420},
            "Limpar campos",
            Look::kNormal,
            kHoldBottomLeft,
            "Limpar a venda e liberar o cliente"},

           {picMensagem, {5280, 4500, 4800, 1200}, "", Look::kWait},
           {lblMensagem, {150, 420, 4500, 360}, "Aguarde...", Look::kWait},
           {ilClassificacaoDaGrade, {}},
       }});
  zvfCodigoDeBarrasDoProduto.label = &lblTipoDeServicoOuCodigoDeBarrasDoProduto;
  zvfNomeDoProduto.label = &lblNomeDoServicoOuNomeDoProduto;
  zvfCodigoInternoDoProduto.label = &lblNomeDoAnimalOuCodigoInternoDoProduto;
  zvfApelidoOuNomeFantasiaDoCliente.label = &lblApelidoOuNomeFantasiaDoCliente;
  alturaDopicMensagem_ = static_cast<std::int16_t>(picMensagem.Height());
  larguraDopicMensagem_ = static_cast<std::int16_t>(picMensagem.Width());
}

}  // namespace sale
