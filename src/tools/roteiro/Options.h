#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "base/DateTime.h"

namespace roteiro {

/// How caixa-roteiro was called.
struct Options {
  /// "sqlite:FILE" or "postgresql:CONNINFO"; empty for stand-ins.
  std::string database;
  /// The module's folder; empty for a fresh temporary one.
  std::string folder;
  /// The time of the start; without it, the real time.
  std::optional<base::DateTime> now;
  bool realClock = false;
  /// A file that takes both directions of the conversation; empty for none.
  std::string log;
};

inline constexpr const char* kUsage =
    "usage: caixa-roteiro [--services stub|sqlite:FILE|postgresql:CONNINFO] [--dir FOLDER]\n"
    "                     [--now 2026-11-22T14:30:00] [--clock virtual|real] [--log FILE]\n";

/// A command line that makes no sense, and why.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Reads the arguments that follow the program's name; UsageError.
Options ReadOptions(const std::vector<std::string>& arguments);

}  // namespace roteiro
