#pragma once

#include <string>
#include <string_view>

#include "base/GradeLida.h"

namespace checkout {

/// The note that a sale is registered with: the customer, their document where it is known, and the
/// animals named on the lines of the sale.
///
///     Cliente: 12-Ana Maria Souza (111.444.777-35)
///     Animais: Rex e Bob
std::string ObservacaoDaVenda(std::string_view codigoDoCliente, std::string_view nomeDoCliente,
                              std::string_view documento, const base::GradeLida& itens);

}  // namespace checkout
