#pragma once

#include <string>

namespace roteiro_tests {

/// Plays a scenario file (README.md tells its form) against a program, and fails the running test
/// with file and line where an answer is not the expected one. `bank` is the address of an empty
/// database, "${BANCO}" in its lines.
void Play(const std::string& program, const std::string& file, const std::string& bank = {});

}  // namespace roteiro_tests
