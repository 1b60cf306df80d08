#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/GradeLida.h"
#include "frame/Grade.h"

/// The sale line: one row of the counter's grid, every cell a text. The grid is the sale; each
/// total is worked out from its cells, and checkout and services read it by these columns.
namespace sale {

enum Coluna : std::int32_t {
  kTipoOuCodigoDeBarras,  ///< Service: number of its type; product: barcode.
  kCodigo,
  kNome,
  kCodigoDoAnimal,
  kNomeDoAnimal,
  kCodigoDoFuncionario,
  kNomeDoFuncionario,
  kQuantidade,
  kValorUnitario,
  kDescontoEmPercentual,  ///< Negative, as is the next one.
  kDescontoEmValor,
  kValorTotal,
  kCusto,
  kPercentualDeComissao,
  kValorDaComissao,
  kNumeroDeLancamento,
  kUnidade,
  kNumeroDaVendaCancelada,
  kColunaTipoDeVenda,  ///< This and the next are read as the last two columns, never by number.
  kColunaTipoDeLancamento,
};

enum TipoDeVenda : std::int32_t { kVendaDeBalcao = 1, kPreVenda = 2 };
enum TipoDeLancamento : std::int16_t { kServico = 1, kProduto = 2 };

/// Service types up to this number are clinical or surgical: the counter may not touch their lines.
inline constexpr std::int32_t kUltimoTipoClinicoOuCirurgico = 4;

using platform::Align;

/// The columns with the field of the pre-sale record that fills each.
inline constexpr std::array<frame::Coluna, 20> kColunasDaVenda{{
    {"Tipo de serviço ou código de barras do produto", 0, Align::kLeftCenter, frame::kTexto,
     "NumeroDoTipoDeServicoOuCodigoDeBarrasDoProduto"},
    {"Código do serviço ou produto", 0, Align::kLeftCenter, frame::kNumero,
     "CodigoDoServicoOuCodigoInternoDoProduto"},
    {"Serviço ou Produto", 3660, Align::kLeftCenter, frame::kTexto, "NomeDoServicoOuNomeDoProduto"},
    {"Código do animal", 0, Align::kLeftCenter, frame::kNumero, "CodigoDoAnimal"},
    {"Animal", 1200, Align::kLeftCenter, frame::kTexto, "NomeDoAnimal"},
    {"Código do funcionário", 0, Align::kLeftCenter, frame::kNumero, "CodigoDoFuncionario"},
    {"Nome do funcionário", 1500, Align::kLeftCenter, frame::kTexto, "NomeDoFuncionario"},
    {"Qtde.", 855, Align::kRightCenter, frame::kNumero, "Quantidade"},
    {"Val.Unit.", 1155, Align::kRightCenter, frame::kNumero, "ValorUnitario"},
    {"(%) Desc.", 1215, Align::kRightCenter, frame::kNumero, "DescontoEmPercentual"},
    {"Val. desc.", 1245, Align::kRightCenter, frame::kNumero, "DescontoEmValor"},
    {"Val. total ", 1290, Align::kRightCenter, frame::kNumero, "ValorTotal"},
    {"Custo", 0, Align::kRightCenter, frame::kNumero, "Custo"},
    {"Percentual de comissao", 0, Align::kRightCenter, frame::kNumero,
     "PercentualDeComissaoDoFuncionario"},
    {"Valor da comissao", 0, Align::kRightCenter, frame::kNumero, "ValorDaComissaoDoFuncionario"},
    {"Número do lançamento", 0, Align::kLeftCenter, frame::kNumero, "NumeroDeLancamento"},
    {"Unidade", 0, Align::kLeftCenter, frame::kTexto, "UnidadeDeVendaDoProduto"},
    {"Número da venda cancelada", 0, Align::kLeftCenter, frame::kNumero, "NumeroDaVendaCancelada"},
    {"Tipo de Venda", 0, Align::kLeftCenter, frame::kNumero, "TipoDeVenda"},
    {"Tipo de lançamento", 0, Align::kLeftCenter, frame::kNumero, "TipoDeLancamento"},
}};

/// What distinguishes a line from another one of the same item, animal and employee.
std::string ChaveDaLinha(const base::GradeLida& grade, std::int32_t linha);
/// The two type columns of a line, as integers.
std::int32_t TipoDeVendaDa(const base::GradeLida& grade, std::int32_t linha);
std::int32_t TipoDeLancamentoDa(const base::GradeLida& grade, std::int32_t linha);
/// Whether the line is a service that only the veterinarian may change.
bool EhClinicoOuCirurgico(const base::GradeLida& grade, std::int32_t linha);

}  // namespace sale
