#include "platform/Layout.h"
#include "siblings/frmOrcamento.h"

namespace siblings {

using namespace platform;

// An item at a time above, the estimate as it grows in the middle, what concerns all of it below.
void frmOrcamento::Desenhar() {
  constexpr unsigned kAbaixo = kHoldLeft | kHoldRight | kHoldBottom;
  Arrange({.size = {13200, 9300},
           .places = {
               {zvTheme, {0, 0, 13200, 660}, "Novo orçamento", Look::kTitle, kHoldWidth},
               {lblCliente, {240, 780, 12720, 360}, "", Look::kTitle, kHoldWidth},
               {picItem, {240, 1215, 12720, 1635}, "", Look::kCard, kHoldWidth},
               {optServico, {180, 120, 1500, 420}, "Serviço"},
               {optProduto, {1740, 120, 1500, 420}, "Produto"},
               {lblItem, {180, 645, 6900, 210}, "Código ou nome*"},
               {zvfItem, {180, 915, 6900, 450}, "", Look::kNormal, kHoldWidth},
               {lblQuantidade, {7230, 645, 1350, 210}, "Quantidade*", Look::kNormal, kHoldTopRight},
               {zvnumQuantidade, {7230, 915, 1350, 450}, "", Look::kNormal, kHoldTopRight},
               {lblValorUnitario,
                {8730, 645, 1650, 210},
                "Valor unitário*",
                Look::kNormal,
                kHoldTopRight},
               {zvnumValorUnitario, {8730, 915, 1650, 450}, "", Look::kNormal, kHoldTopRight},
               {zvcmdAdicionar,
                {10530, 900, 2010, 480},
                "Adicionar",
                Look::kNormal,
                kHoldTopRight,
                "Adicionar o item ao orçamento"},
               {msfgGrade, {240, 3000, 11340, 3000}, "", Look::kNormal, kHoldAll},
               {zvcmdRemover,
                {11730, 3000, 1230, 480},
                "Remover",
                Look::kNormal,
                kHoldTopRight,
                "Remover o item selecionado"},
               {lblObservacao, {240, 6150, 7440, 210}, "Observação", Look::kNormal, kAbaixo},
               {zvtxtObservacao, {240, 6420, 7440, 1755}, "", Look::kNormal, kAbaixo},
               {lblDiasDeValidade,
                {7845, 6150, 2400, 210},
                "Validade em dias*",
                Look::kNormal,
                kHoldBottomRight},
               {zvnumDiasDeValidade, {7845, 6420, 2400, 450}, "", Look::kNormal, kHoldBottomRight},
               {lblDesconto,
                {10560, 6150, 2400, 210},
                "Desconto (R$)",
                Look::kNormal,
                kHoldBottomRight},
               {zvnumDesconto, {10560, 6420, 2400, 450}, "", Look::kNormal, kHoldBottomRight},
               {picTotal, {7845, 7020, 5115, 1155}, "", Look::kMainAmount, kHoldBottomRight},
               {lblTotal, {180, 105, 4755, 210}, "Total do orçamento", Look::kMainAmount},
               {zvtxtTotal, {180, 375, 4755, 660}, "", Look::kMainAmount},
               {picRodape, {0, 8445, 13200, 855}, "", Look::kFooter, kAbaixo},
               {lblObservacaoDeCamposObrigatorios,
                {240, 300, 4230, 255},
                "* Campos obrigatórios",
                Look::kHint},
               {zvcmdCancelar, {10110, 195, 1320, 480}, "Cancelar", Look::kNormal, kHoldTopRight},
               {zvcmdSalvar, {11580, 195, 1380, 480}, "Salvar", Look::kPrimary, kHoldTopRight},
           }});
}

}  // namespace siblings
