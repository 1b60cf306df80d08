#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/Currency.h"
#include "base/DateTime.h"

namespace services {

class Banco;

/// How a customer stands with the cash desk.
struct FichaDoCliente {
  struct Conta {
    std::int32_t venda = 0;  ///< 0 for one that is of no sale.
    base::DateTime vencimento;
    base::Currency valor;
  };
  struct PreVenda {
    std::int32_t numero = 0;
    std::string nome;
    base::Currency valor;
  };

  std::string apelido, nome;
  base::Currency credito, limite;
  std::vector<Conta> contasEmAberto;
  std::vector<PreVenda> preVendasEmAberto;
};

/// Nothing when there is no such customer. Throws DatabaseError.
std::optional<FichaDoCliente> LerFichaDoCliente(Banco& banco, std::int32_t codigo);

}  // namespace services
