#pragma once

#include <optional>
#include <string>

namespace checkout {

/// Why a due date is refused, and whether the box says it with the stop icon.
struct RecusaDeData {
  std::string texto;
  bool grave = false;
};

/// Judges day, month and year by the calendar, but for the century: any year divisible by four has
/// a 29 February. Nothing when they pass.
std::optional<RecusaDeData> RecusaDaData(int dia, int mes, int ano);

}  // namespace checkout
