#include "checkout/drComprovanteDePagamentoDeVenda.h"

#include "base/Numbers.h"

namespace checkout {

using platform::Paper;
using platform::ReportAlign;
using platform::ReportFont;
using platform::ReportLayout;

namespace {

constexpr auto kADireita = ReportAlign::kRight;
constexpr auto kAoCentro = ReportAlign::kCenter;
constexpr bool kCresce = true;
constexpr std::string_view kSemValorFiscal = "Este comprovante não tem valor fiscal.";

}  // namespace

drComprovanteDePagamentoDeVenda::drComprovanteDePagamentoDeVenda(const Paper& papel)
    : DataReport("drComprovanteDePagamentoDeVenda") {
  for (platform::ReportText* valor : {&txtValorUnitario, &txtDesconto, &txtValorTotal}) {
    valor->DataFormat = std::string(base::kMoneyMask);
  }
  Arrange(papel.kind == Paper::Kind::kRoll80 ? EmBobina() : EmFolha());
}

// A sheet: a table whose columns stand under their headings on every page.
ReportLayout drComprovanteDePagamentoDeVenda::EmFolha() {
  constexpr ReportFont kTitulo{.points = 15, .bold = true};
  constexpr ReportFont kDestaque{.points = 11, .bold = true};
  constexpr ReportFont kForte{.points = 9, .bold = true};
  constexpr ReportFont kTexto{.points = 9};
  constexpr ReportFont kMiudo{.points = 8};
  return {
      .paper = platform::kA4Paper,
      .bands = {{CabecalhoDaPagina, 2280},
                {Detalhes, 270},
                {RodapeDoRelatorio, 2400},
                {RodapeDaPagina, 420}},
      .places = {
          {lblNomeFantasiaDaEmpresa, {0, 0, 6600, 390}, "", kTitulo},
          {lblTituloDoComprovante, {0, 420, 6600, 270}, "Comprovante de pagamento", kTexto},
          {lblRotuloDaVenda, {7000, 60, 1500, 300}, "Venda nº", kDestaque, kADireita},
          {lblNumeroDaVenda, {8560, 60, 1646, 300}, "", kDestaque, kADireita},
          {lblEmissao, {6600, 420, 3606, 270}, "Emitido em %d às %t", kTexto, kADireita},
          {linCliente, {0, 780, 10206, 0}},
          {lblRotuloDoCliente, {0, 870, 1100, 270}, "Cliente", kForte},
          {lblCodigoENomeOuRazaoSocialDoCliente,
           {1100, 870, 9106, 270},
           "",
           kTexto,
           ReportAlign::kLeft,
           kCresce},
          {lblEnderecoDoCliente, {1100, 1140, 9106, 270}, "", kTexto, ReportAlign::kLeft, kCresce},
          {lblCanalDeComunicacaoDoCliente,
           {1100, 1410, 9106, 270},
           "",
           kTexto,
           ReportAlign::kLeft,
           kCresce},
          {linColunas, {0, 1830, 10206, 0}},
          {lblData, {0, 1905, 1050, 270}, "Data", kForte},
          {lblAnimal, {1100, 1905, 1500, 270}, "Animal", kForte},
          {lblServicoOuProduto, {2660, 1905, 2900, 270}, "Serviço ou produto", kForte},
          {lblQuantidade, {5560, 1905, 800, 270}, "Qtde.", kForte, kADireita},
          {lblUnidade, {6430, 1905, 600, 270}, "Un.", kForte},
          {lblValorUnitario, {6980, 1905, 1100, 270}, "Valor unit.", kForte, kADireita},
          {lblDesconto, {8080, 1905, 980, 270}, "Desconto", kForte, kADireita},
          {lblValorTotal, {9060, 1905, 1146, 270}, "Valor total", kForte, kADireita},
          {linDetalhes, {0, 2220, 10206, 0}},

          {txtDataDoServicoEfetuadoOuProdutoReservado,
           {0, 15, 1050, 240},
           "DataDoServicoEfetuadoOuProdutoReservado",
           kTexto},
          {txtNomeDoAnimal,
           {1100, 15, 1500, 240},
           "NomeDoAnimal",
           kTexto,
           ReportAlign::kLeft,
           kCresce},
          {txtNomeDoServicoOuProduto,
           {2660, 15, 2900, 240},
           "NomeDoServicoOuProduto",
           kTexto,
           ReportAlign::kLeft,
           kCresce},
          {txtQuantidade, {5560, 15, 800, 240}, "Quantidade", kTexto, kADireita},
          {txtUnidadeDeVenda, {6430, 15, 600, 240}, "UnidadeDeVenda", kTexto},
          {txtValorUnitario, {6980, 15, 1100, 240}, "ValorUnitario", kTexto, kADireita},
          {txtDesconto, {8080, 15, 980, 240}, "ValorDeDesconto", kTexto, kADireita},
          {txtValorTotal, {9060, 15, 1146, 240}, "ValorTotal", kTexto, kADireita},

          {linTotais, {0, 45, 10206, 0}},
          {lblTotalDosServicosEProdutos,
           {2660, 150, 5400, 300},
           "Total dos serviços e produtos:",
           kDestaque,
           kADireita},
          {txtTotalDosServicosEProdutos, {8160, 150, 2046, 300}, "", kDestaque, kADireita},
          {lblValorPago, {1100, 510, 6960, 270}, "", kTexto, kADireita, kCresce},
          {txtValorPago, {8160, 510, 2046, 270}, "", kTexto, kADireita},
          {lblTroco, {2660, 1110, 5400, 270}, "", kTexto, kADireita},
          {txtTroco, {8160, 1110, 2046, 270}, "", kTexto, kADireita},
          {lblCredito, {2660, 1410, 5400, 270}, "Crédito para o cliente", kTexto, kADireita},
          {txtCredito, {8160, 1410, 2046, 270}, "", kTexto, kADireita},
          {lblSaldoDevedor, {2660, 810, 5400, 270}, "Saldo devedor:", kForte, kADireita},
          {txtSaldoDevedor, {8160, 810, 2046, 270}, "", kForte, kADireita},
          {lblSemValorFiscal, {0, 1890, 6000, 240}, kSemValorFiscal, kMiudo},
          {lblAgradecimento,
           {6000, 1890, 4206, 240},
           "Obrigado pela preferência!",
           kMiudo,
           kADireita},

          {linRodape, {0, 90, 10206, 0}},
          {lblTituloDoAplicativo, {0, 150, 7000, 240}, "", kMiudo},
          {lblPagina, {7000, 150, 3206, 240}, "Página %p de %P", kMiudo, kADireita},
      }};
}

// The roll is too narrow for a table: an item is its name, and below it the sum that makes its
// price.
ReportLayout drComprovanteDePagamentoDeVenda::EmBobina() {
  constexpr ReportFont kTitulo{.points = 11, .bold = true};
  constexpr ReportFont kForte{.points = 9, .bold = true};
  constexpr ReportFont kTexto{.points = 8};
  // What speaks for itself has no heading, and there is but one page.
  for (platform::ReportLabel* rotulo : {&lblAnimal, &lblUnidade, &lblPagina}) {
    rotulo->Visible = false;
  }
  return {
      .paper = platform::kRoll80Paper,
      .bands = {{CabecalhoDaPagina, 2535},
                {Detalhes, 720},
                {RodapeDoRelatorio, 2400},
                {RodapeDaPagina, 540}},
      .places = {
          {lblNomeFantasiaDaEmpresa, {0, 0, 4081, 300}, "", kTitulo, kAoCentro, kCresce},
          {lblTituloDoComprovante,
           {0, 330, 4081, 240},
           "COMPROVANTE DE PAGAMENTO",
           kTexto,
           kAoCentro},
          {lblRotuloDaVenda, {0, 630, 900, 240}, "Venda nº", kForte},
          {lblNumeroDaVenda, {900, 630, 1000, 240}, "", kForte},
          {lblEmissao, {1950, 630, 2131, 240}, "%d %t", kTexto, kADireita},
          {linCliente, {0, 930, 4081, 0}},
          {lblRotuloDoCliente, {0, 990, 4081, 210}, "Cliente", kTexto},
          {lblCodigoENomeOuRazaoSocialDoCliente,
           {0, 1200, 4081, 210},
           "",
           kForte,
           ReportAlign::kLeft,
           kCresce},
          {lblEnderecoDoCliente, {0, 1425, 4081, 210}, "", kTexto, ReportAlign::kLeft, kCresce},
          {lblCanalDeComunicacaoDoCliente,
           {0, 1650, 4081, 210},
           "",
           kTexto,
           ReportAlign::kLeft,
           kCresce},
          {linColunas, {0, 1950, 4081, 0}},
          {lblData, {0, 1995, 1000, 210}, "Data", kTexto},
          {lblServicoOuProduto, {1000, 1995, 3081, 210}, "Serviço ou produto", kTexto},
          {lblQuantidade, {0, 2220, 760, 210}, "Qtde.", kTexto, kADireita},
          {lblValorUnitario, {1240, 2220, 900, 210}, "Unitário", kTexto, kADireita},
          {lblDesconto, {2140, 2220, 900, 210}, "Desconto", kTexto, kADireita},
          {lblValorTotal, {3040, 2220, 1041, 210}, "Total", kTexto, kADireita},
          {linDetalhes, {0, 2490, 4081, 0}},

          {txtNomeDoServicoOuProduto,
           {0, 15, 4081, 210},
           "NomeDoServicoOuProduto",
           kForte,
           ReportAlign::kLeft,
           kCresce},
          {txtDataDoServicoEfetuadoOuProdutoReservado,
           {0, 240, 1000, 210},
           "DataDoServicoEfetuadoOuProdutoReservado",
           kTexto},
          {txtNomeDoAnimal, {1000, 240, 3081, 210}, "NomeDoAnimal", kTexto},
          {txtQuantidade, {0, 465, 760, 210}, "Quantidade", kTexto, kADireita},
          {txtUnidadeDeVenda, {820, 465, 420, 210}, "UnidadeDeVenda", kTexto},
          {txtValorUnitario, {1240, 465, 900, 210}, "ValorUnitario", kTexto, kADireita},
          {txtDesconto, {2140, 465, 900, 210}, "ValorDeDesconto", kTexto, kADireita},
          {txtValorTotal, {3040, 465, 1041, 210}, "ValorTotal", kForte, kADireita},

          {linTotais, {0, 45, 4081, 0}},
          {lblTotalDosServicosEProdutos, {0, 120, 2700, 240}, "Total:", kTitulo},
          {txtTotalDosServicosEProdutos, {2300, 120, 1781, 240}, "", kTitulo, kADireita},
          {lblValorPago, {0, 450, 2900, 210}, "", kTexto, ReportAlign::kLeft, kCresce},
          {txtValorPago, {2900, 450, 1181, 210}, "", kTexto, kADireita},
          {lblTroco, {0, 930, 2900, 210}, "", kTexto},
          {txtTroco, {2900, 930, 1181, 210}, "", kTexto, kADireita},
          {lblCredito, {0, 1170, 2900, 210}, "Crédito para o cliente", kTexto},
          {txtCredito, {2900, 1170, 1181, 210}, "", kTexto, kADireita},
          {lblSaldoDevedor, {0, 690, 2900, 210}, "Saldo devedor:", kForte},
          {txtSaldoDevedor, {2900, 690, 1181, 210}, "", kForte, kADireita},
          {lblSemValorFiscal, {0, 1560, 4081, 210}, kSemValorFiscal, kTexto, kAoCentro},
          {lblAgradecimento, {0, 1800, 4081, 210}, "Obrigado pela preferência!", kTexto, kAoCentro},

          {linRodape, {0, 60, 4081, 0}},
          {lblTituloDoAplicativo, {0, 120, 4081, 210}, "", kTexto, kAoCentro},
      }};
}

}  // namespace checkout
