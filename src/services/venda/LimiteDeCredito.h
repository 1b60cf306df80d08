#pragma once

#include <cstdint>
#include <optional>

#include "base/Currency.h"

namespace services {

class Session;

/// How much a customer may owe, and owes: the documents that are not received yet.
struct LimiteDeCredito {
  base::Currency limite;  ///< 0 where he may owe at will.
  base::Currency utilizado;

  base::Currency Disponivel() const { return limite - utilizado; }
  bool Cobre(base::Currency valor) const {
    return limite <= base::Currency() || valor <= Disponivel();
  }
};

/// Nothing when there is no such customer. Throws DatabaseError.
std::optional<LimiteDeCredito> LerLimiteDeCredito(Session& session, std::int32_t cliente);

}  // namespace services
