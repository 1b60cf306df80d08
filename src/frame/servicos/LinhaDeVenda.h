#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "base/GradeLida.h"

/// The sale line: one row of the counter's grid under its header row, every cell a text. The grid
/// is the sale; it is handed to the services as it stands, and a pre-sale comes as records of the
/// same fields in the same order.
///
/// Amounts and percentages are "#,##0.00" in the Brazilian form. The copy of the grid over which
/// the discount of the whole sale is spread has plain decimal text in columns 9 to 11, 13 and 14
/// ("1234,5"), and its discounts are positive. Readers take both.
namespace servicos::linha {

enum Coluna : std::int32_t {
  kTipoOuCodigoDeBarras = 0,  ///< Service: number of its type. Product: barcode.
  kCodigo = 1,                ///< Service: its code. Product: internal code.
  kNome = 2,
  kCodigoDoAnimal = 3,  ///< Empty for a product, as is the next one.
  kNomeDoAnimal = 4,
  kCodigoDoFuncionario = 5,  ///< "0" without an employee.
  /// The name padded with blanks to kLarguraDoNome, and behind it the percentage of the commission
  /// padded to kLarguraDaComissao. Empty without an employee; of a pre-sale line the name alone.
  kNomeDoFuncionario = 6,
  kQuantidade = 7,  ///< Service: whole. Product: two decimals.
  kValorUnitario = 8,
  kDescontoEmPercentual = 9,  ///< Negative; positive in the copy. So is the next one.
  kDescontoEmValor = 10,
  kValorTotal = 11,
  kCusto = 12,  ///< Of one unit.
  kPercentualDeComissao = 13,
  kValorDaComissao = 14,
  kNumeroDeLancamento = 15,  ///< The ledger entry that the line settles; 0 for a new line.
  kUnidade = 16,             ///< Empty for a service.
  kNumeroDaVendaCancelada = 17,
  /// This and the next are the last two columns of the grid, whatever it has: readers ask for them
  /// by ColunaDoTipoDeVenda and ColunaDoTipoDeLancamento.
  kColunaTipoDeVenda = 18,
  kColunaTipoDeLancamento = 19,
};

inline constexpr std::int32_t kColunas = 20;

inline std::int32_t ColunaDoTipoDeVenda(const base::GradeLida& grade) {
  return grade.Cols() - 2;
}
inline std::int32_t ColunaDoTipoDeLancamento(const base::GradeLida& grade) {
  return grade.Cols() - 1;
}

/// In characters: what kNomeDoFuncionario is made of.
inline constexpr std::size_t kLarguraDoNome = 100, kLarguraDaComissao = 50;

/// The field of the pre-sale record that fills each column.
inline constexpr std::array<std::string_view, kColunas> kCampos{
    "NumeroDoTipoDeServicoOuCodigoDeBarrasDoProduto",
    "CodigoDoServicoOuCodigoInternoDoProduto",
    "NomeDoServicoOuNomeDoProduto",
    "CodigoDoAnimal",
    "NomeDoAnimal",
    "CodigoDoFuncionario",
    "NomeDoFuncionario",
    "Quantidade",
    "ValorUnitario",
    "DescontoEmPercentual",
    "DescontoEmValor",
    "ValorTotal",
    "Custo",
    "PercentualDeComissaoDoFuncionario",
    "ValorDaComissaoDoFuncionario",
    "NumeroDeLancamento",
    "UnidadeDeVendaDoProduto",
    "NumeroDaVendaCancelada",
    "TipoDeVenda",
    "TipoDeLancamento",
};

}  // namespace servicos::linha
