#pragma once

#include <span>

#include "frame/servicos/Pagamento.h"
#include "platform/ZVComboBox.h"

namespace frame {

/// Offers the tenders in a combo, the code as item data, with nothing chosen. Customer's credit is
/// left out of the list of a customer who has none.
void OferecerFormasDePagamento(platform::ZVComboBox& combo,
                               std::span<const servicos::pagamento::Forma> formas,
                               bool clienteTemCredito);

}  // namespace frame
