#pragma once

#include <cstdint>
#include <string>

#include "base/Currency.h"
#include "base/DateTime.h"
#include "frame/servicos/Codigos.h"
#include "services/banco/Session.h"
#include "services/venda/Colunas.h"

namespace services {

/// What moved a customer's credit. Never changed or deleted.
struct MovimentoDeCredito {
  std::int32_t codigoDoCliente = 0;
  base::DateTime quando = {};
  servicos::TipoDeCredito tipo = servicos::kCreditoAcrescido;
  std::int32_t moeda = 0;
  base::Currency valor = {};  ///< Negative for what the customer used or got back.
  std::string operador = {}, observacao = {};
  std::int64_t operacao = 0;       ///< The attempt that wrote it, with all that it wrote.
  std::int32_t numeroDaVenda = 0;  ///< 0 for none.
};

/// The columns that every movement of credit has; the sale's number is not among them.
const std::vector<Coluna>& ColunasDoCredito();
Params LinhaDoCredito(const MovimentoDeCredito& movimento);

/// Writes the movement in the open transaction and moves the customer's credit. What goes with it
/// in the register or the debts proves the transaction. Throws Refusal when the customer is not
/// registered or has less credit than would go, and DatabaseError.
void MoverCredito(Session& session, const MovimentoDeCredito& movimento);

}  // namespace services
