#pragma once

#include <cstdint>
#include <optional>

#include "services/banco/Session.h"
#include "services/venda/Travas.h"
#include "services/venda/Venda.h"

namespace services {

// The two ways of writing the same rows of a sale inside a transaction that is open, for one
// workstation. Both give its number, or nothing when the register is not open, the customer unknown
// or held by another workstation, their credit or its limit too small, or a pre-sale line no longer
// open; the transaction is then to be rolled back. Until it ends nobody can take the customer.

/// In one file: a statement a row, which costs next to nothing where no network lies between.
std::optional<std::int32_t> EscreverNoSqlite(Session& session, const Venda& venda,
                                             const Estacao& estacao);

/// Over the network: the whole sale in one statement, since the round trips are what costs.
std::optional<std::int32_t> EscreverNoPostgres(Session& session, const Venda& venda,
                                               const Estacao& estacao);

}  // namespace services
