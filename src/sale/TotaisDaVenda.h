#pragma once

#include "base/Currency.h"
#include "sale/Aritmetica.h"

namespace sale {

class TelaDoBalcao;

/// What the sale comes to: the amounts under its lines, which feed each other, and what remains of
/// them after cost and commissions. Amounts are read from their fields, as the operator sees them.
class TotaisDaVenda {
 public:
  explicit TotaisDaVenda(TelaDoBalcao& tela) : tela_(tela) {}

  /// What checkout registers beside the amounts; once for the lines as they stand, and once for
  /// those with the sale's discount spread over them.
  struct Resultado {
    base::Currency Custo, Comissao, LucroEmValor, LucroEmPercentual;
  };

  base::Currency Bruto() const;
  base::Currency Liquido() const;
  /// The percentage of the discount on the whole sale.
  base::Currency Percentual() const;
  /// What a discount on the whole sale is a percentage of: gross plus the line discounts, which
  /// their own field holds below zero.
  base::Currency BaseDoDesconto() const;
  /// The line discounts, below zero, plus the sale's, above it: so checkout takes them.
  base::Currency TotalDeDescontos() const;

  /// Shows what the lines add up to.
  void Exibir(const SomaDasLinhas& soma);
  /// Works out what remains, once the net is known.
  void Apurar(const SomaDasLinhas& soma);
  /// The value of the sale's discount from its percentage, and the percentage from the value. Error
  /// 11 where there is nothing that the value could be a percentage of.
  void CalcularValorDoDesconto();
  void CalcularPercentualDoDesconto();
  void CalcularLiquido();

  /// Spreads the sale's discount over the copy of the lines. Error 11 for a sale of nothing.
  void DistribuirDesconto();
  const Resultado& SemDesconto() const { return semDesconto_; }
  const Resultado& ComDesconto() const { return comDesconto_; }

 private:
  TelaDoBalcao& tela_;
  Resultado semDesconto_, comDesconto_;
};

}  // namespace sale
