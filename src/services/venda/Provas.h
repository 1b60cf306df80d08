#pragma once

#include "services/banco/Statement.h"

namespace services {

/// What can be registered. The characters stand in the notes that a program leaves (Lembrete).
enum class TipoDeRegistro : char {
  kMovimento = '0',  ///< Of a register, credit paid in or out among them.
  kVenda = '1',
  kCancelamento = '2',  ///< Of a sale, or its being undone.
  kAcerto = '3',        ///< Debts closed.
};

/// The selection that finds what was registered by its operation, $1, whether by this run of the
/// program or an earlier one; of a sale it gives the number.
const Statement& ProvaDe(TipoDeRegistro tipo);

}  // namespace services
