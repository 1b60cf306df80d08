#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/Form.h"
#include "siblings/dados/clsOrcamentos.h"

namespace siblings {

/// In the numbers of `tipoDeLancamento`.
enum class TipoDeItem : std::int32_t { kServico = 1, kProduto = 2 };

/// Looks for a service or product by its code, its barcode or part of its name, and lets the
/// operator choose where there are several: the item with its price and no quantity. Nothing when
/// none was found or chosen, or after a fault: the operator has been told. `tela` is the screen
/// that asks.
std::optional<dados::Orcamento::Item> EscolherItem(platform::Form& tela, TipoDeItem tipo,
                                                   const std::string& texto);

}  // namespace siblings
