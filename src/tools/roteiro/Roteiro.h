#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace platform {
class Desktop;
}

namespace roteiro {

class Module;
class StandIns;
struct Options;

/// What stands behind the conversation.
struct Parts {
  std::function<std::unique_ptr<Module>()> makeModule;
  /// Puts real services over options.database behind the business classes, and screens or stand-ins
  /// behind the others; std::runtime_error says why it cannot.
  /// Gives what is to be done whenever the operator is at a screen or at none.
  std::function<std::function<void()>(const Options& options, StandIns& standIns,
                                      platform::Desktop& desktop)>
      useDatabase;
};

/// The whole program: reads the command line, holds the conversation on standard input and output
/// until the input ends. The exit status: 0; 1 when it could not start; 2 for a usage error.
int Run(const std::vector<std::string>& arguments, const Parts& parts);

}  // namespace roteiro
