#include "sale/TotaisDaVenda.h"

#include "frame/CamposNumericos.h"
#include "sale/TelaDoBalcao.h"

namespace sale {

using base::Currency;
using base::FormatMoney;
using frame::LerCurrency;
using frame::LerDouble;

Currency TotaisDaVenda::Bruto() const {
  return LerCurrency(tela_.zvnumTotal);
}
Currency TotaisDaVenda::Liquido() const {
  return LerCurrency(tela_.zvnumLiquidoAPagar);
}
Currency TotaisDaVenda::Percentual() const {
  return LerCurrency(tela_.zvnumPercentualTotalDeDesconto);
}
Currency TotaisDaVenda::BaseDoDesconto() const {
  return Bruto() - LerCurrency(tela_.zvnumValorTotalDeDescontoItensDaGrade);
}
Currency TotaisDaVenda::TotalDeDescontos() const {
  return LerCurrency(tela_.zvnumValorTotalDeDescontoItensDaGrade) +
         LerCurrency(tela_.zvnumValorTotalDeDesconto);
}

void TotaisDaVenda::Exibir(const SomaDasLinhas& soma) {
  tela_.zvnumTotal.Text = FormatMoney(soma.bruto);
  tela_.zvnumValorTotalDeDescontoItensDaGrade.Text = FormatMoney(soma.descontos);
}

void TotaisDaVenda::Apurar(const SomaDasLinhas& soma) {
  const Lucro lucro = CalcularLucro(Liquido(), soma.custo, soma.comissoes);
  semDesconto_ = {.Custo = Arredondar(soma.custo),
                  .Comissao = soma.comissaoArredondada,
                  .LucroEmValor = lucro.valor,
                  .LucroEmPercentual = lucro.percentual};
}

void TotaisDaVenda::CalcularValorDoDesconto() {
  tela_.zvnumValorTotalDeDesconto.Text =
      ValorDoPercentual(BaseDoDesconto(), LerDouble(tela_.zvnumPercentualTotalDeDesconto));
}

void TotaisDaVenda::CalcularPercentualDoDesconto() {
  tela_.zvnumPercentualTotalDeDesconto.Text = PercentualDoDesconto(
      LerCurrency(tela_.zvnumValorTotalDeDesconto), base::ToDouble(BaseDoDesconto()), 1);
}

void TotaisDaVenda::CalcularLiquido() {
  tela_.zvnumLiquidoAPagar.Text = FormatMoney(
      sale::CalcularLiquido(Bruto(), LerDouble(tela_.zvnumValorTotalDeDescontoItensDaGrade),
                            LerCurrency(tela_.zvnumValorTotalDeDesconto)));
}

void TotaisDaVenda::DistribuirDesconto() {
  const Currency custo = semDesconto_.Custo;
  const Currency comissao = sale::DistribuirDesconto(tela_.msfgGrade, Bruto(), Liquido(),
                                                     tela_.msfgGradeComDescontoAplicado);
  const Lucro lucro = CalcularLucro(Liquido(), custo, comissao);
  comDesconto_ = {.Custo = custo,
                  .Comissao = comissao,
                  .LucroEmValor = lucro.valor,
                  .LucroEmPercentual = lucro.percentual};
}

}  // namespace sale
