#pragma once

#include <optional>

#include "siblings/NotaPromissoria.h"

namespace siblings {

/// The company as it stands on documents. Nothing after a fault, which has been reported, and where
/// none is registered: then the operator has read that `oQue`, as in "o orçamento", cannot be
/// printed.
std::optional<Empresa> EmpresaDoDocumento(std::string_view oQue);

}  // namespace siblings
