#pragma once

#include <string>
#include <vector>

namespace bench {

/// How a program ran, from its start to its end.
struct Run {
  double seconds = 0;
  int status = 0;       ///< As it exited; 128 and the signal that ended it.
  long peakMemory = 0;  ///< The most memory that it had in use at once, in bytes.
  std::string output;
};

/// Runs a program to its end, without a display. `input` is a file that it reads; `settings` are
/// variables of its environment, as in "NAME=value". Throws std::runtime_error.
Run RunProgram(const std::vector<std::string>& command, const std::string& input = "/dev/null",
               const std::vector<std::string>& settings = {});

}  // namespace bench
