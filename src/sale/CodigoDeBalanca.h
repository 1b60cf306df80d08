#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/Currency.h"

/// The barcode that a scale prints, by its positions from 1: "2", six digits of the internal code,
/// five of weight or price, and a check digit that nobody looks at.
namespace sale {

/// The internal code of the product, without the zeros in front.
std::string CodigoInternoDaBalanca(const std::string& codigo);

/// The quantity that the code stands for: its weight, or its price over the unit price, by the
/// company's format; nothing for a format that is not known. Error 13 for a code without the five
/// digits, 11 for a price over nothing.
std::optional<base::Currency> QuantidadeDaBalanca(const std::string& codigo, std::int32_t formato,
                                                  base::Currency valorUnitario);

}  // namespace sale
