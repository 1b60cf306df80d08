#pragma once

#include <cstdint>
#include <string>

#include "base/Currency.h"
#include "base/DateTime.h"
#include "frame/servicos/Codigos.h"
#include "frame/servicos/Pagamento.h"
#include "services/Banco.h"

namespace services {

/// A movement of a register that is no sale.
struct Movimento {
  std::int64_t operacao = 0;  ///< Tells this attempt from every other one.
  base::DateTime quando;
  servicos::TipoDeMovimento tipo = servicos::kEntrada;
  std::int32_t numeroDoCaixa = 0;
  std::int32_t moeda = servicos::pagamento::kDinheiro;
  base::Currency valor;  ///< Negative when the money leaves the drawer.
  std::string descricao, operador, situacao, observacao;
};

/// Unless it stands already (see Registros), writes the entry, moves the money in the drawer, opens
/// or closes the register, all in one transaction. Throws Refusal: 41, 43, 51 or 52 for the
/// register's state, 2 when more money would leave the drawer than is in it. Throws DatabaseError,
/// and what Registros does.
void RegistrarMovimento(Banco& banco, const Movimento& movimento);

}  // namespace services
