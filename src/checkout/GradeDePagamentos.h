#pragma once

#include <array>
#include <cstdint>

#include "frame/Grade.h"

namespace checkout {

/// The columns of the tender grid, which the services read as it stands. A tender's text begins
/// with its code; the due date is "__/__/____" where there is none; the last column is the
/// service's.
enum ColunaDePagamento : std::int32_t {
  kColunaForma = 0,
  kColunaValor = 1,
  kColunaVencimento = 2,
  kColunaNumeroDoLancamento = 3,
};

inline constexpr std::array<frame::Coluna, 4> kColunasDePagamento{{
    {.titulo = "Forma de pagamento", .largura = 4200},
    {.titulo = "Valor",
     .largura = 1750,
     .alinhamento = platform::Align::kRightCenter,
     .tipo = frame::kNumero},
    {.titulo = "Data de vencimento", .largura = 2300, .tipo = frame::kData},
    {.titulo = "Numero do lancamento"},
}};

}  // namespace checkout
