#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "base/Record.h"
#include "frame/servicos/Servico.h"

namespace services {

/// A rule of the business says no. Thrown where the rule is checked, it leaves the transaction
/// undone and becomes the status of the operation.
struct Refusal {
  std::int16_t status = servicos::kRecusa;
  std::string sentence;  ///< What happened and what to do next, for the operator.
};

/// What a service answers after an operation: the status itself, the fault, the refusal, the rows.
class Outcome {
 public:
  /// Runs an operation and tells how it went; nothing is thrown. `service` is an identifier such as
  /// "ZOVA_N_Caixa.clsCaixa".
  std::int16_t Of(std::string_view service, std::string_view member,
                  const std::function<void()>& operation);

  std::int32_t number = 0;
  std::string description;
  std::string place;
  /// Of a refusal; after a success, what the operator should know of its rows.
  std::string sentence;
  base::RecordSetPtr rows;

 private:
  std::int16_t Fault(std::int32_t withNumber, std::string_view withDescription);
};

}  // namespace services
