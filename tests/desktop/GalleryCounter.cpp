#include "desktop/GalleryCounter.h"

#include <array>
#include <string>

#include "platform/Layout.h"

namespace gallery {

using platform::Look;

Counter::Counter() : Form("frmGaleria") {
  FillToolbar();
  optProduto.Preset();
  for (platform::Form* form : {static_cast<platform::Form*>(this)}) form->Caption.Assign("Galeria");
  constexpr unsigned kFoot = platform::kHoldBottomLeft;
  constexpr unsigned kCorner = platform::kHoldBottomRight;
  Arrange(
      {.size = {15360, 11520},
       .places = {
           {picTitulo,
            {0, 0, 2850, 11520},
            "",
            Look::kStrip,
            platform::kHoldLeft | platform::kHoldTop | platform::kHoldBottom},
           {lblCaixa, {0, 0, 2835, 555}, "CAIXA", Look::kTitle},
           {lblNomeDoCaixa, {180, 735, 2400, 240}, "Nome do caixa"},
           {zvcmbCaixas, {180, 990, 2475, 450}},
           {lblEstado, {180, 1530, 2475, 330}, "Aberto", Look::kBadge},
           {tbMenu, {0, 2040, 2835, 7500}},
           {picCliente, {3030, 150, 12150, 1035}, "", Look::kCard, platform::kHoldWidth},
           {lblFicha, {195, 150, 1440, 240}, "Ficha clínica"},
           {zvfFicha, {195, 405, 1440, 450}},
           {lblCliente, {1785, 150, 3660, 240}, "Cliente* [ VIP - A ]  Apelido ou nome fantasia"},
           {zvfCliente, {1785, 405, 3660, 450}},
           {lblNome, {5595, 150, 4770, 240}, "Nome ou razão social"},
           {zvfNome, {5595, 405, 6360, 450}, "", Look::kNormal, platform::kHoldWidth},
           {picItem, {3030, 1335, 12150, 2085}, "", Look::kCard, platform::kHoldWidth},
           {optServico, {195, 630, 1125, 450}, "Serviço"},
           {optProduto, {1320, 630, 1125, 450}, "Produto"},
           {lblCodigo, {2595, 150, 2250, 450}, "Codigo de barras do produto"},
           {zvfCodigo, {2595, 630, 2250, 450}},
           {lblComissionado, {4995, 360, 2000, 240}, "Comissionado"},
           {zvcmbComissionado, {4995, 630, 2400, 450}},
           {lblQuantidade, {195, 1200, 1350, 240}, "Quantidade"},
           {zvnumQuantidade, {195, 1455, 1350, 450}},
           {lblValor, {1695, 1200, 1650, 240}, "Valor unitário"},
           {zvnumValor, {1695, 1455, 1650, 450}},
           {chkEntrega, {3600, 1455, 2000, 450}, "Entregar em casa"},
           {zvcmdAdicionar, {6855, 1410, 1290, 480}, "Adicionar", Look::kPrimary},
           {zvcmdAlterar, {8265, 1410, 1050, 480}, "Alterar"},
           {zvcmdRemover, {9435, 1410, 1230, 480}, "Remover"},
           {msfgGrade, {3030, 3570, 12150, 5880}, "", Look::kNormal, platform::kHoldAll},
           {lblSubtotal, {3030, 9810, 2000, 240}, "Subtotal", Look::kNormal, kFoot},
           {zvnumSubtotal, {3030, 10065, 2000, 450}, "", Look::kNormal, kFoot},
           {lblDica,
            {5400, 10065, 5000, 450},
            "Os descontos da venda valem para todos os itens.",
            Look::kHint,
            kFoot},
           {picLiquido, {11730, 9600, 3450, 960}, "", Look::kMainAmount, kCorner},
           {lblLiquido, {225, 120, 3000, 240}, "Líquido a pagar"},
           {zvnumLiquido, {225, 330, 3000, 540}, "", Look::kMainAmount},
           {zvcmdPagamento,
            {11730, 10740, 3450, 630},
            "Pagamento",
            Look::kPrimary,
            kCorner,
            "",
            "register-open"},
           {zvcmdLimpar, {3030, 10890, 1815, 480}, "Limpar campos", Look::kNormal, kFoot},
           {picMensagem, {0, 0, 5400, 1350}, "", Look::kWait},
           {lblMensagem, {0, 450, 5400, 450}, "Aguarde, pesquisando o cliente."},
       }});
  picMensagem.Visible.Assign(false);
}

void Counter::FillToolbar() {
  struct Button {
    const char* key;
    const char* caption;
  };
  static constexpr std::array kButtons{Button{"Abertura", "Abertura"},
                                       Button{"Fechamento", "Fechamento"},
                                       Button{"Entradas", "Entradas"},
                                       Button{"Saidas", "Saídas"},
                                       Button{"CancelarVenda", "Cancelar venda"},
                                       Button{"DesfazerCancelamento", "Desfazer cancelamento"},
                                       Button{"CreditoDoCliente", "Crédito do cliente"},
                                       Button{"DebitosDoCliente", "Débitos do cliente"},
                                       Button{"ConsultarHistoricoDeVendas", "Histórico de vendas"},
                                       Button{"ConsultarPrecos", "Consultar preços"},
                                       Button{"Orcamentos", "Orçamentos"},
                                       Button{"Relatorios", "Relatórios"},
                                       Button{"Comprovantes", "Comprovantes"}};
  for (const Button& button : kButtons) {
    tbMenu.Add(button.key, button.caption, "menu_caixa_" + std::string(button.key));
  }
}

void Counter::Fill(int lines) {
  zvcmbCaixas.AddItem("Recepção", 1);
  zvcmbCaixas.AddItem("Pet shop", 2);
  zvcmbCaixas.AddItem("Banho e tosa (anexo da loja, segundo balcão)", 3);
  zvcmbCaixas.ListIndex = 0;
  for (int i = 1; i <= 14; ++i) {
    zvcmbComissionado.AddItem("Funcionário número " + std::to_string(i), i);
  }
  tbMenu.Buttons("Abertura").Enabled = false;
  zvfCliente.Text = "Ana";
  zvfCliente.Enabled = false;
  zvfNome.Text = "Ana Maria de Souza Albuquerque e Vasconcelos Filha";
  zvfNome.Enabled = false;
  zvfFicha.Enabled = false;
  zvfCodigo.Text = "7891234567895";
  zvnumQuantidade.Text = "1,000";
  zvnumValor.Text = "100,00";
  zvnumValor.Locked = true;
  zvnumSubtotal.Text = "375,30";
  zvnumSubtotal.Locked = true;
  zvnumLiquido.Text = "362,30";
  zvnumLiquido.Locked = true;
  msfgGrade.Cols(9);
  static constexpr std::array kWidths{4300, 900, 1600, 900, 1300, 1300, 1300, 1500, 0};
  static constexpr std::array kTitles{
      "Serviço ou Produto", "Animal",     "Funcionário", "Qtde.", "Val.Unit.",
      "(%) Desc.",          "Val. desc.", "Val. total",  "Tipo"};
  for (int col = 0; col < 9; ++col) {
    msfgGrade.ColWidth(col, kWidths[static_cast<std::size_t>(col)]);
    msfgGrade.TextMatrix(0, col, kTitles[static_cast<std::size_t>(col)]);
    if (col >= 3) msfgGrade.ColAlignment(col, platform::Align::kRightCenter);
  }
  msfgGrade.standsBack = [this](std::int32_t row) { return msfgGrade.TextMatrix(row, 8) == "2"; };
  static constexpr std::array kLines{
      "Consulta clínica\tRex\tDr. Paulo\t1\t180,00\t0,00\t0,00\t180,00\t2",
      "Banho e tosa\tBob\tCarla\t1\t80,00\t-10,00\t-8,00\t72,00\t1",
      "Ração Premium para cães adultos de raças grandes, frango e arroz, 10 kg\t\tCarla\t1,00\t"
      "100,00\t-5,00\t-5,00\t95,00\t1",
      "Petisco bovino (kg)\t\t\t0,50\t30,60\t0,00\t0,00\t15,30\t1"};
  for (int i = 0; i < lines; ++i) msfgGrade.AddItem(kLines[static_cast<std::size_t>(i % 4)]);
  if (lines > 0) msfgGrade.RemoveItem(1);
  msfgGrade.Row(0);
  msfgGrade.CellPicture("Classificacao_Crescente");
  msfgGrade.Row(lines > 2 ? 3 : 1);
}

}  // namespace gallery
