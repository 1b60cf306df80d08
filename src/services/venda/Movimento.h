#pragma once

#include "services/Banco.h"
#include "services/venda/Lancamentos.h"

namespace services {

/// Unless it stands already (see Registros), writes the entry, moves the money in the drawer, opens
/// or closes the register, all in one transaction. Throws Refusal: 41, 43, 51 or 52 for the
/// register's state, 2 when more money would leave the drawer than is in it. Throws DatabaseError,
/// and what Registros does.
void RegistrarMovimento(Banco& banco, const Lancamento& movimento);

}  // namespace services
