#include "siblings/drOrcamento.h"

#include "base/Numbers.h"

namespace siblings {

using platform::ReportAlign;
using platform::ReportFont;
using platform::ReportLayout;

namespace {

constexpr auto kAEsquerda = ReportAlign::kLeft;
constexpr auto kADireita = ReportAlign::kRight;
constexpr auto kAoCentro = ReportAlign::kCenter;
constexpr bool kCresce = true;
constexpr std::string_view kSemValorFiscal = "Este orçamento não é documento fiscal.";

}  // namespace

drOrcamento::drOrcamento(const platform::Paper& papel) : DataReport("drOrcamento") {
  for (platform::ReportText* valor : {&txtValorUnitario, &txtValorTotal}) {
    valor->DataFormat = std::string(base::kMoneyMask);
  }
  Title = "Orçamento";
  Arrange(papel.kind == platform::Paper::Kind::kRoll80 ? EmBobina() : EmFolha());
}

// What may be empty has no height of its own, so that it leaves no gap.
ReportLayout drOrcamento::EmFolha() {
  constexpr ReportFont kTitulo{.points = 15, .bold = true};
  constexpr ReportFont kTotal{.points = 13, .bold = true};
  constexpr ReportFont kDestaque{.points = 11, .bold = true};
  constexpr ReportFont kForte{.points = 9, .bold = true};
  constexpr ReportFont kTexto{.points = 9};
  constexpr ReportFont kMiudo{.points = 8};
  return {.paper = platform::kA4Paper,
          .bands = {{CabecalhoDaPagina, 1545},
                    {Detalhes, 270},
                    {RodapeDoRelatorio, 1620},
                    {RodapeDaPagina, 330}},
          .places = {
              {lblEmpresa, {0, 0, 6600, 345}, "", kTitulo, kAEsquerda, kCresce},
              {lblDadosDaEmpresa, {0, 420, 6600, 390}, "", kMiudo, kAEsquerda, kCresce},
              {lblTitulo, {6700, 60, 3506, 300}, "", kDestaque, kADireita},
              {lblData, {6700, 420, 3506, 270}, "", kTexto, kADireita},
              {linCliente, {0, 900, 10206, 0}},
              {lblCliente, {0, 990, 10206, 0}, "", kTexto, kAEsquerda, kCresce},
              {lblAnimal, {0, 1035, 10206, 0}, "", kTexto, kAEsquerda, kCresce},
              {linColunas, {0, 1110, 10206, 0}},
              {lblNome, {0, 1185, 5400, 270}, "Serviço ou produto", kForte},
              {lblQuantidade, {5400, 1185, 1100, 270}, "Quantidade", kForte, kADireita},
              {lblUnidade, {6640, 1185, 780, 270}, "Un.", kForte},
              {lblValorUnitario, {7300, 1185, 1400, 270}, "Valor unitário", kForte, kADireita},
              {lblValorTotal, {8806, 1185, 1400, 270}, "Valor total", kForte, kADireita},
              {linDetalhes, {0, 1485, 10206, 0}},

              {txtNome, {0, 15, 5400, 210}, "Nome", kTexto, kAEsquerda, kCresce},
              {txtQuantidade, {5400, 15, 1100, 240}, "Quantidade", kTexto, kADireita},
              {txtUnidade, {6640, 15, 780, 210}, "Unidade", kTexto, kAEsquerda, kCresce},
              {txtValorUnitario, {7300, 15, 1400, 240}, "ValorUnitario", kTexto, kADireita},
              {txtValorTotal, {8806, 15, 1400, 240}, "ValorTotal", kTexto, kADireita},

              {linTotais, {0, 45, 10206, 0}},
              {lblRotuloDaSoma, {5400, 135, 2700, 270}, "Soma dos itens:", kTexto, kADireita},
              {sumValorTotal, {8160, 135, 2046, 270}, "ValorTotal", kTexto, kADireita},
              {lblRotuloDoDesconto, {5400, 405, 2700, 270}, "Desconto:", kTexto, kADireita},
              {lblDesconto, {8160, 405, 2046, 270}, "", kTexto, kADireita},
              {lblRotuloDoTotal, {4400, 720, 3700, 330}, "Total do orçamento:", kTotal, kADireita},
              {lblTotal, {8160, 720, 2046, 330}, "", kTotal, kADireita},
              {lblObservacao, {0, 1170, 10206, 0}, "", kTexto, kAEsquerda, kCresce},
              {lblValidade, {0, 1275, 10206, 270}, "", kForte},

              {lblSemValorFiscal, {0, 60, 7000, 240}, kSemValorFiscal, kMiudo},
              {lblPagina, {7000, 60, 3206, 240}, "Página %p de %P", kMiudo, kADireita},
          }};
}

// The roll is too narrow for a table: an item is its name, and below it what makes its price.
ReportLayout drOrcamento::EmBobina() {
  constexpr ReportFont kTitulo{.points = 11, .bold = true};
  constexpr ReportFont kTotal{.points = 13, .bold = true};
  constexpr ReportFont kForte{.points = 9, .bold = true};
  constexpr ReportFont kPreco{.points = 8, .bold = true};
  constexpr ReportFont kTexto{.points = 8};
  for (platform::ReportLabel* rotulo : {&lblUnidade, &lblPagina}) rotulo->Visible = false;
  return {.paper = platform::kRoll80Paper,
          .bands = {{CabecalhoDaPagina, 1125},
                    {Detalhes, 480},
                    {RodapeDoRelatorio, 1380},
                    {RodapeDaPagina, 330}},
          .places = {
              {lblEmpresa, {0, 0, 4081, 0}, "", kTitulo, kAoCentro, kCresce},
              {lblDadosDaEmpresa, {0, 30, 4081, 0}, "", kTexto, kAoCentro, kCresce},
              {lblTitulo, {0, 120, 2400, 210}, "", kForte},
              {lblData, {2400, 135, 1681, 195}, "", kTexto, kADireita},
              {linCliente, {0, 405, 4081, 0}},
              {lblCliente, {0, 465, 4081, 0}, "", kTexto, kAEsquerda, kCresce},
              {lblAnimal, {0, 495, 4081, 0}, "", kTexto, kAEsquerda, kCresce},
              {linColunas, {0, 570, 4081, 0}},
              {lblNome, {0, 630, 4081, 210}, "Serviço ou produto", kTexto},
              {lblQuantidade, {0, 840, 1000, 210}, "Qtde.", kTexto, kADireita},
              {lblValorUnitario, {1500, 840, 1200, 210}, "Unitário", kTexto, kADireita},
              {lblValorTotal, {2800, 840, 1281, 210}, "Total", kTexto, kADireita},
              {linDetalhes, {0, 1095, 4081, 0}},

              {txtNome, {0, 15, 4081, 210}, "Nome", kForte, kAEsquerda, kCresce},
              {txtQuantidade, {0, 240, 1000, 210}, "Quantidade", kTexto, kADireita},
              {txtUnidade, {1060, 240, 440, 210}, "Unidade", kTexto, kAEsquerda, kCresce},
              {txtValorUnitario, {1500, 240, 1200, 210}, "ValorUnitario", kTexto, kADireita},
              {txtValorTotal, {2800, 240, 1281, 210}, "ValorTotal", kPreco, kADireita},

              {linTotais, {0, 45, 4081, 0}},
              {lblRotuloDaSoma, {0, 120, 2300, 210}, "Soma dos itens:", kTexto},
              {sumValorTotal, {2300, 120, 1781, 210}, "ValorTotal", kTexto, kADireita},
              {lblRotuloDoDesconto, {0, 345, 2300, 210}, "Desconto:", kTexto},
              {lblDesconto, {2300, 345, 1781, 210}, "", kTexto, kADireita},
              {lblRotuloDoTotal, {0, 600, 2000, 300}, "Total:", kTotal},
              {lblTotal, {2000, 600, 2081, 300}, "", kTotal, kADireita},
              {lblObservacao, {0, 990, 4081, 0}, "", kTexto, kAEsquerda, kCresce},
              {lblValidade, {0, 1095, 4081, 210}, "", kForte, kAEsquerda, kCresce},

              {lblSemValorFiscal, {0, 60, 4081, 210}, kSemValorFiscal, kTexto, kAoCentro},
          }};
}

}  // namespace siblings
