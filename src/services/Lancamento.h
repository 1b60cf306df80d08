#pragma once

#include <cstdint>

namespace services {

/// What moved the money of a register.
enum class TipoDeLancamento : std::int32_t {
  kAbertura = 1,
  kFechamento = 2,
  kEntrada = 3,
  kSaida = 4,
  kRecebimento = 5,  ///< A tender of a sale.
  kTroco = 6,        ///< Change given on a sale.
};

}  // namespace services
