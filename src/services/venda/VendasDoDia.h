#pragma once

#include <cstdint>
#include <string_view>

#include "base/DateTime.h"
#include "base/Record.h"

namespace services {

class Session;

/// The sales of one day on a register that are in a state (kEfetuada, kCancelada), the newest
/// first: 14 fields in the order of the columns in which the cash desk lists past sales, each a
/// text in its final form. What was received is the net less what was bought on credit.
base::RecordSetPtr VendasDoDia(Session& session, std::string_view situacao,
                               std::int32_t numeroDoCaixa, base::DateTime dia);

/// The lines of a sale: ten fields in the order of the columns of their list, each a text.
/// Discounts are positive.
base::RecordSetPtr ItensDeUmaVenda(Session& session, std::int32_t numeroDaVenda);

}  // namespace services
