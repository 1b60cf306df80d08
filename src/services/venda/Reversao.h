#pragma once

#include <cstdint>
#include <string>

#include "base/DateTime.h"

namespace services {

class Banco;

/// A sale is taken back, or put back in force.
struct Reversao {
  bool desfaz = false;  ///< A cancellation is undone.
  std::int32_t numeroDaVenda = 0;
  std::int32_t numeroDoCaixa = 0;
  base::DateTime quando = {};
  std::int64_t operacao = 0;  ///< Tells this attempt from every other one.
  std::string operador = {}, motivo = {};
  std::string consentidoPor = {};  ///< The supervisor; empty where none was asked.
};

/// Cancels a sale of today, or undoes its cancellation, unless that stands already (see Registros),
/// in one transaction. Nothing that was written changes: each entry of the register is reversed by
/// one of its own, the customer's credit by a movement; receivables are closed as cancelled or
/// opened again, pre-sale lines opened or settled again, and who did it, when and why is kept.
/// Throws Refusal: 41, 43 or 52 for the register's state; 2 when the sale is not of this register,
/// not of today or not in the state that this needs, when a receivable was received or renegotiated
/// meanwhile, a pre-sale line sold, or credit or drawer hold less than would go. Throws
/// DatabaseError, and what Registros does.
void ReverterVenda(Banco& banco, const Reversao& reversao);

}  // namespace services
