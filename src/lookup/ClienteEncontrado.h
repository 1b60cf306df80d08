#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "base/Record.h"
#include "frame/servicos/Codigos.h"

namespace lookup {

/// The discounts that a customer was granted, in whole percentages.
struct PerfilDeDescontos {
  struct Categoria {
    std::int32_t tipoDeServico = 0;
    std::int32_t percentual = 0;
  };

  bool descontoUnico = false;  ///< One percentage holds for all services.
  std::int32_t percentualUnico = 0;
  std::array<Categoria, 8> categorias;

  /// The percentage for a type of service; nothing where none is granted for it.
  std::optional<std::int32_t> Para(std::int32_t tipoDeServico) const;
};

/// A customer who was found, as the counter serves them.
struct ClienteEncontrado {
  std::string codigo, apelido, nome;
  std::string cpfCnpj;
  std::string sufixoDoRotulo;  ///< What follows "Cliente*" on the label of the box.
  std::string endereco, canalDeComunicacao;
  PerfilDeDescontos descontos;
};

/// The customer of the current row. A percentage of 12,5 is taken as 12, on purpose.
ClienteEncontrado ClienteDe(const base::RecordSet& registro);

}  // namespace lookup
