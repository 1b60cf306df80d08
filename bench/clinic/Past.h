#pragma once

#include <cstdint>
#include <string>

#include "clinic/Clinic.h"

namespace bench {

/// So many a day, on register 1, the last of them today.
inline constexpr std::int64_t kSalesOfADay = 1'000;
/// Each with three lines and two tenders, in cash and by PIX or card.
inline constexpr std::int64_t kLinesOfASale = 3;
inline constexpr std::int64_t kTendersOfASale = 2;

/// The demonstration clinic with as many past sales as the command line has rows. Kept from run to
/// run as LargeClinic.
Database ClinicWithPast(services::Engine engine);

/// A copy of a database under another name, for a benchmark that writes. Nobody may be connected.
Database CopyOf(const Database& database, const std::string& name);

}  // namespace bench
