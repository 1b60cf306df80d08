#pragma once

#include <cstdint>

#include "siblings/Sessao.h"

namespace siblings {

/// Shows a customer's estimate as it is printed, from where the operator prints it. Nothing comes
/// up after a fault, which has been reported.
void ImprimirOrcamento(const Cliente& cliente, std::int32_t numero);

}  // namespace siblings
