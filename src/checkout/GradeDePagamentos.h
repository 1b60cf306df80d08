#pragma once

#include <array>

#include "frame/Grade.h"
#include "frame/servicos/Pagamento.h"

namespace checkout {

using enum servicos::pagamento::Coluna;

/// The columns of the tender grid, which the services read as it stands.
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
