#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/DateTime.h"

namespace services {

class Banco;

/// A customer who is being served at a computer. It keeps the other computers off that customer.
struct Trava {
  std::int32_t codigoDoCliente = 0;
  std::string nomeDoCliente;
  std::string computador;
  std::string usuario;
  base::DateTime desde;
};

/// All locks that stand, the oldest first. Throws DatabaseError.
std::vector<Trava> ListarTravas(Banco& banco);

/// Frees a customer whoever holds him, as when a computer died with a customer on its screen; false
/// when nobody held him. Throws DatabaseError.
bool LiberarTrava(Banco& banco, std::int32_t codigoDoCliente);

}  // namespace services
