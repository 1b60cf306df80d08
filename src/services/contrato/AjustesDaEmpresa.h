#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace services {

class Banco;

/// A setting of the company that cannot be taken. `what()` is a Portuguese sentence that says what
/// to give instead.
class AjusteInvalido : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A setting by its name in the service contract, and its value as people write it: "Sim" or
/// "Não", 22/11/2026, 12,50; an empty text for none.
using Ajuste = std::pair<std::string, std::string>;

/// All settings of the company, in their order. Throws AjusteInvalido when there is no company, and
/// DatabaseError.
std::vector<Ajuste> LerAjustesDaEmpresa(Banco& banco);

/// Changes the settings named and leaves the others; all or none. Throws as above.
void AlterarEmpresa(Banco& banco, const std::vector<Ajuste>& ajustes);

}  // namespace services
