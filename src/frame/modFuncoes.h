#pragma once

#include <cstdint>

#include "base/Currency.h"

namespace frame {

/// Whether another computer holds the customer: 1, the operator has been told; otherwise 0, also
/// when this very computer holds them or the question failed.
std::int16_t VerificarBloqueioDoClienteParaOperacoesNosCaixas(double codigo);

/// The two actions of BloquearOuDesbloquearClienteParaOperacoesNosCaixas.
enum : std::int16_t { kBloquear = 1, kDesbloquear = 2 };

/// Locks a customer for this computer (action 1) or frees them (any other). What the database makes
/// of it is not acted upon: the lock is advisory. A run-time error is the caller's to report.
void BloquearOuDesbloquearClienteParaOperacoesNosCaixas(double codigo, std::int16_t acao);

/// Reads the customer's credit; with any number of customers but one, `credito` stays as it came.
/// False after a fault, which has been reported.
bool RetornarCreditoDoCliente(double codigo, base::Currency& credito);

/// Whether a sale may leave `valor` to be paid on credit. A limit of zero is no limit; beyond what
/// is available an administrator is warned and anyone else refused.
bool InformacoesDoLimiteDeCredito(double codigo, base::Currency valor);

}  // namespace frame
