#pragma once

#include <string>

namespace roteiro_tests {

/// Plays a scenario file (README.md tells its form) against a program, and fails the running test
/// with file and line where an answer is not the expected one.
void Play(const std::string& program, const std::string& file);

}  // namespace roteiro_tests
