#pragma once

#include <string>

#include "base/Currency.h"
#include "base/GradeLida.h"
#include "platform/MSFlexGrid.h"

/// The arithmetic of a sale, from texts in the Brazilian form to texts and amounts. Which step is
/// told in currency and which in double is part of each rule.
namespace sale {

/// What the lines of a sale add up to.
struct SomaDasLinhas {
  base::Currency bruto;      ///< Rounded quantity of the cell times unit price.
  base::Currency descontos;  ///< Negative, as the cells hold them.
  base::Currency custo;
  base::Currency comissoes;            ///< Column by column, unrounded.
  base::Currency comissaoArredondada;  ///< Rounded to two decimals at every line.
};
SomaDasLinhas SomarLinhas(const base::GradeLida& grade);

/// An amount through "#,##0.00" and back, which rounds it half away from zero to two decimals.
base::Currency Arredondar(base::Currency valor);
base::Currency Arredondar(double valor);

struct Lucro {
  base::Currency valor;
  base::Currency percentual;  ///< A ratio with two decimals: 0,25 is a quarter.
};
/// What remains of the net after cost and commissions.
Lucro CalcularLucro(base::Currency liquido, base::Currency custo, base::Currency comissoes);

/// A percentage of an amount, through "#,##0.00".
std::string ValorDoPercentual(base::Currency sobre, double percentual);
/// The percentage that a discount is of quantity times unit price, through "#,##0.00".
std::string PercentualDoDesconto(base::Currency desconto, double quantidade, double valorUnitario);

/// The net of the sale: gross, less the line discounts (negative in `descontosDosItens`), less the
/// discount on the whole sale.
base::Currency CalcularLiquido(base::Currency bruto, double descontosDosItens,
                               base::Currency descontoDaVenda);

/// The line total, which the percentage field has no part in.
base::Currency TotalDaLinha(double quantidade, double valorUnitario, double desconto);
/// The commission on a line total.
base::Currency ComissaoDaLinha(base::Currency percentual, base::Currency total);

/// Fills `copia` with the lines of `grade`, the net's distance from the gross spread over them as
/// one percentage that replaces their own discounts; positive there, and as plain decimal text.
/// Rounding remainders stay. Returns the commission of the spread lines.
base::Currency DistribuirDesconto(const base::GradeLida& grade, base::Currency bruto,
                                  base::Currency liquido, platform::MSFlexGrid& copia);

/// The quotient; error 11 when the divisor is zero.
double Dividir(double dividendo, double divisor);

}  // namespace sale
