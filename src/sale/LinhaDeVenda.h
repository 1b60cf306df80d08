#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/GradeLida.h"
#include "frame/Grade.h"
#include "frame/servicos/Codigos.h"
#include "frame/servicos/LinhaDeVenda.h"

/// The lines of a sale as the counter shows and reads them. The grid is the sale: each total is
/// worked out from its cells.
namespace sale {

using enum servicos::linha::Coluna;
using servicos::TipoDeLancamento;
using enum servicos::TipoDeLancamento;

using platform::Align;

inline constexpr std::array<frame::Coluna, servicos::linha::kColunas> kColunasDaVenda{{
    {"Tipo de serviço ou código de barras do produto", 0, Align::kLeftCenter, frame::kTexto},
    {"Código do serviço ou produto", 0, Align::kLeftCenter, frame::kNumero},
    {"Serviço ou Produto", 3660, Align::kLeftCenter, frame::kTexto},
    {"Código do animal", 0, Align::kLeftCenter, frame::kNumero},
    {"Animal", 1200, Align::kLeftCenter, frame::kTexto},
    {"Código do funcionário", 0, Align::kLeftCenter, frame::kNumero},
    {"Nome do funcionário", 1500, Align::kLeftCenter, frame::kTexto},
    {"Qtde.", 855, Align::kRightCenter, frame::kNumero},
    {"Val.Unit.", 1155, Align::kRightCenter, frame::kNumero},
    {"(%) Desc.", 1215, Align::kRightCenter, frame::kNumero},
    {"Val. desc.", 1245, Align::kRightCenter, frame::kNumero},
    {"Val. total ", 1290, Align::kRightCenter, frame::kNumero},
    {"Custo", 0, Align::kRightCenter, frame::kNumero},
    {"Percentual de comissao", 0, Align::kRightCenter, frame::kNumero},
    {"Valor da comissao", 0, Align::kRightCenter, frame::kNumero},
    {"Número do lançamento", 0, Align::kLeftCenter, frame::kNumero},
    {"Unidade", 0, Align::kLeftCenter, frame::kTexto},
    {"Número da venda cancelada", 0, Align::kLeftCenter, frame::kNumero},
    {"Tipo de Venda", 0, Align::kLeftCenter, frame::kNumero},
    {"Tipo de lançamento", 0, Align::kLeftCenter, frame::kNumero},
}};

/// A line about to be added.
struct NovaLinha {
  std::string chave;    ///< What it shares with a line of the same item, animal and employee.
  std::string celulas;  ///< Its cells joined by tabs.
};

/// The two type columns of a line, as integers.
std::int32_t TipoDeVendaDa(const base::GradeLida& grade, std::int32_t linha);
std::int32_t TipoDeLancamentoDa(const base::GradeLida& grade, std::int32_t linha);
/// Whether the line is a service that only the veterinarian may change.
bool EhClinicoOuCirurgico(const base::GradeLida& grade, std::int32_t linha);

}  // namespace sale
