#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "frame/servicos/Codigos.h"
#include "platform/Form.h"
#include "siblings/dados/clsOrcamentos.h"

namespace siblings {

/// Looks for a service or product by its code, its barcode or part of its name, and lets the
/// operator choose where there are several: the item with its price and no quantity. Nothing when
/// none was found or chosen, or after a fault: the operator has been told. `tela` is the screen
/// that asks.
std::optional<dados::Orcamento::Item> EscolherItem(platform::Form& tela,
                                                   servicos::TipoDeLancamento tipo,
                                                   const std::string& texto);

}  // namespace siblings
