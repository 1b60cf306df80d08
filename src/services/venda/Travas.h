#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/DateTime.h"
#include "services/Estacao.h"

namespace services {

class Banco;
class Session;

// A customer who is being served is held by one workstation, which is told from others by the name
// of its computer and by its mark. Where either side has no mark, the name alone counts: a host
// that gives none goes on as before, and what an older version left held by this very computer is
// its own.

/// A customer who is being served at a computer. It keeps the other computers off that customer.
struct Trava {
  std::int32_t codigoDoCliente = 0;
  std::string nomeDoCliente;
  std::string computador;
  std::string usuario;
  base::DateTime desde;
};

/// Holds a customer for a workstation, which may hold them already. Throws Refusal when another one
/// does, and when there is no such customer; DatabaseError.
void TravarCliente(Banco& banco, std::int32_t codigo, const Estacao& estacao,
                   const std::string& usuario);

/// Lets a customer go, whom nobody may hold. Throws Refusal when another workstation does;
/// DatabaseError.
void DestravarCliente(Banco& banco, std::int32_t codigo, const Estacao& estacao);

/// The condition, in a selection of travas_de_clientes, that another workstation holds the
/// customer: another one than that whose ComputerForm and mark are at these places.
std::string DeOutraEstacao(int nome, int marca);

/// The name of the holder's computer in such a selection; the name alone would pass for the
/// workstation's own where another one bears it too.
std::string NomeParaAEstacao(int nome, int marca);

/// Which user at which computer holds the customer, in words for a workstation other than that;
/// empty where nobody does or the workstation itself.
std::string OutroDetentor(Session& session, std::int32_t codigo, const Estacao& estacao);

/// All locks that stand, the oldest first. Throws DatabaseError.
std::vector<Trava> ListarTravas(Banco& banco);

/// Frees a customer whoever holds them, as when a computer died with a customer on its screen;
/// false when nobody held them. Throws DatabaseError.
bool LiberarTrava(Banco& banco, std::int32_t codigoDoCliente);

}  // namespace services
