#include "platform/Layout.h"
#include "siblings/frmHistoricoDeVendas.h"

namespace siblings {

using namespace platform;

// The sales above, the lines of the one selected below, what they come to at the foot.
void frmHistoricoDeVendas::Desenhar() {
  Arrange(
      {.size = {14700, 9900},
       .places = {
           {zvTheme, {0, 0, 14700, 660}, "Histórico de vendas", Look::kTitle, kHoldWidth},
           {lblCliente, {240, 960, 8400, 600}, "", Look::kTitle, kHoldWidth},
           {lblDataInicial, {8820, 855, 1650, 210}, "Data inicial*", Look::kNormal, kHoldTopRight},
           {zvdtpDataInicial, {8820, 1125, 1650, 450}, "", Look::kNormal, kHoldTopRight},
           {lblDataFinal, {10620, 855, 1650, 210}, "Data final*", Look::kNormal, kHoldTopRight},
           {zvdtpDataFinal, {10620, 1125, 1650, 450}, "", Look::kNormal, kHoldTopRight},
           {zvcmdPesquisar,
            {12420, 1110, 2040, 480},
            "Pesquisar",
            Look::kNormal,
            kHoldTopRight,
            "Pesquisar as vendas do período"},
           {lblVendas, {240, 1725, 6000, 210}, "Vendas"},
           {msfgGrade, {240, 1995, 14220, 3375}, "", Look::kNormal, kHoldAll},
           {lblItens,
            {240, 5505, 14220, 210},
            "Itens da venda",
            Look::kNormal,
            kHoldLeft | kHoldRight | kHoldBottom},
           {msfgItens,
            {240, 5775, 14220, 2115},
            "",
            Look::kNormal,
            kHoldLeft | kHoldRight | kHoldBottom},
           {picTotais,
            {240, 8025, 14220, 870},
            "",
            Look::kCard,
            kHoldLeft | kHoldRight | kHoldBottom},
           {lblQuantidade, {180, 120, 6420, 405}, "", Look::kTitle},
           {lblDescontosDasVendas, {180, 540, 6420, 255}, "", Look::kHint},
           {lblValorBruto, {6780, 90, 2310, 210}, "Valor bruto", Look::kNormal, kHoldTopRight},
           {zvtxtValorBruto, {6780, 330, 2310, 420}, "", Look::kAmount, kHoldTopRight},
           {lblDescontos, {9270, 90, 2310, 210}, "Descontos", Look::kNormal, kHoldTopRight},
           {zvtxtDescontos, {9270, 330, 2310, 420}, "", Look::kAmount, kHoldTopRight},
           {lblValorLiquido, {11760, 90, 2310, 210}, "Valor líquido", Look::kNormal, kHoldTopRight},
           {zvtxtValorLiquido, {11760, 330, 2310, 420}, "", Look::kAmount, kHoldTopRight},
           {picRodape,
            {0, 9045, 14700, 855},
            "",
            Look::kFooter,
            kHoldLeft | kHoldRight | kHoldBottom},
           {lblAviso, {240, 300, 12600, 255}, "", Look::kHint},
           {zvcmdFechar, {13080, 195, 1380, 480}, "Fechar", Look::kPrimary, kHoldTopRight},
       }});
}

}  // namespace siblings
