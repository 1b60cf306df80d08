#pragma once

#include <cstdint>

#include "services/venda/Venda.h"

namespace services {

class Banco;

/// Writes a sale, unless it stands already (see Registros), in one transaction: its number, lines,
/// register entries, receivables, the money in the drawer, the customer's credit, the pre-sale
/// lines that it settles. Gives the number. Throws Refusal when the register cannot take it, the
/// customer is unknown or held by another workstation, their credit or its limit is too small, or a
/// pre-sale line is no longer open; nothing is written then. Locks stay as they are. Throws
/// DatabaseError, and what Registros does.
std::int32_t RegistrarVenda(Banco& banco, const Venda& venda);

}  // namespace services
