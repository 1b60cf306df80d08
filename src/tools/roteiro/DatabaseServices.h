#pragma once

namespace platform {
class Desktop;
}

namespace roteiro {

class StandIns;
struct Options;

/// Puts the business services over the options' database, and the fiscal export over their exchange
/// folder, behind their classes, and the suite's sibling screens behind theirs. std::runtime_error
/// says why it cannot.
void UseDatabase(const Options& options, StandIns& standIns, platform::Desktop& desktop);

}  // namespace roteiro
