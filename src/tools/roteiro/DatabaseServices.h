#pragma once

#include <functional>

namespace platform {
class Desktop;
}

namespace roteiro {

class StandIns;
struct Options;

/// Puts the business services over the options' database, and the fiscal export over their exchange
/// folder, behind their classes, and the suite's sibling screens behind theirs. std::runtime_error
/// says why it cannot. Gives what is to be done whenever the operator is at a screen or at none: it
/// takes up what waits for the database, and tells in boxes what came to light late.
std::function<void()> UseDatabase(const Options& options, StandIns& standIns,
                                  platform::Desktop& desktop);

}  // namespace roteiro
