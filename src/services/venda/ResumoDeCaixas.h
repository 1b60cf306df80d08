#pragma once

#include <cstdint>
#include <optional>

#include "base/DateTime.h"
#include "base/Record.h"
#include "services/banco/Fields.h"

namespace services {

class Session;

/// What a cash report covers.
struct Cobertura {
  std::optional<std::int32_t> caixa = {};  ///< Nothing for all registers.
  base::DateTime de = {}, ate = {};        ///< Days, both included.
};

/// A row for each register and day with any movement, by register and then day, its figures those
/// of the columns of the summary. What leaves the register is negative.
base::RecordSetPtr ResumoDeCaixas(Session& session, const Cobertura& cobertura);

/// A row for each entry that moved money, by register and in the order in which they were made; at
/// most `most`. What a sale left to be paid, or took from the customer's credit, is told in the
/// observation of its entries. `ValorRecebido` is what the entry adds to the day's payments, null
/// where it is none of them.
Selected LancamentosDeCaixas(Session& session, const Cobertura& cobertura, std::int64_t most);

}  // namespace services
