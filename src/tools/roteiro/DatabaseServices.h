#pragma once

#include <string>

namespace platform {
class Desktop;
}

namespace roteiro {

class StandIns;

/// Puts the business services over the database at "sqlite:FILE" or "postgresql:CONNINFO" behind
/// their classes, and the sibling screens that exist behind theirs; the sibling screens that do not
/// exist yet keep their stand-ins. std::runtime_error says why it cannot.
void UseDatabase(const std::string& database, StandIns& standIns, platform::Desktop& desktop);

}  // namespace roteiro
