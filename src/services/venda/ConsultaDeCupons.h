#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/Currency.h"
#include "base/DateTime.h"

namespace services {

class Banco;

/// A coupon that was asked for, as the database knows it.
struct Cupom {
  std::int32_t numero = 0;
  base::DateTime quando;
  std::string computador;
  std::int32_t caixa = 0;
  std::string operador;
  std::int32_t codigoDoCliente = 0;  ///< 0 where none was known.
  std::string nomeDoCliente;
  base::Currency valor;
  std::string chave;
  std::int32_t venda = 0;  ///< Its sale, with its key or registered without; 0 for none.
  std::string desfecho;    ///< What became of it, in words.
};

/// The coupons that are open, the oldest first; or every one. Throws DatabaseError.
std::vector<Cupom> ListarCupons(Banco& banco, bool todos);

/// Closes a coupon that is open for this reason, so that it is not told any more; false when it is
/// not open. Throws DatabaseError.
bool EncerrarCupom(Banco& banco, std::int32_t numero, const std::string& motivo);

/// What the operator of this workstation should hear at the start of the day: the coupons that it
/// left open, and those that any other one has left open for more than a day. Empty when there are
/// none. Throws DatabaseError.
std::string AvisoDeCupons(Banco& banco);

}  // namespace services
