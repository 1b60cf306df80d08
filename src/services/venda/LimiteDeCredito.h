#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/Currency.h"

namespace services {

class Session;

/// How much a customer may owe, and owes: the documents that are not received yet.
struct LimiteDeCredito {
  base::Currency limite;  ///< 0 where they may owe at will.
  base::Currency utilizado;

  base::Currency Disponivel() const { return limite - utilizado; }
};

/// Nothing when there is no such customer. Throws DatabaseError.
std::optional<LimiteDeCredito> LerLimiteDeCredito(Session& session, std::int32_t cliente);

/// The rule, as a condition of a statement: no limit of the customer is smaller than what they owe
/// with the value. Both are places, as in "$1"; the value is a whole number, and 0 is always
/// within.
std::string DentroDoLimite(const std::string& cliente, const std::string& valor);

/// Whether the rule allows it now. Throws DatabaseError.
bool CabeNoLimite(Session& session, std::int32_t cliente, base::Currency valor);

}  // namespace services
