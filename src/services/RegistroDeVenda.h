#pragma once

#include <cstdint>

#include "services/Session.h"
#include "services/Venda.h"

namespace services {

/// Writes a sale in one transaction: its number, lines, register entries, receivables, the money in
/// the drawer, the customer's credit, the pre-sale lines that it settles. Gives the number. Throws
/// Refusal when the register cannot take it, the customer is unknown or his credit too small, or a
/// pre-sale line is no longer open; nothing is written then. Throws DatabaseError.
std::int32_t RegistrarVenda(Session& session, const Venda& venda);

}  // namespace services
