#pragma once

#include <cstdint>

#include "services/banco/Session.h"

namespace services {

/// Throws the refusal that keeps a register from a movement: it does not exist, was deactivated, or
/// is open when it should be closed or the other way round. Returns when nothing does.
void ExigirCaixa(Session& session, std::int32_t numero, bool aberto);

}  // namespace services
