#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "base/DateTime.h"
#include "platform/DataReport.h"

namespace roteiro {

/// How caixa-roteiro was called.
struct Options {
  /// "sqlite:FILE" or "postgresql:CONNINFO"; empty for stand-ins.
  std::string database;
  /// The module's folder; empty for a fresh temporary one.
  std::string folder;
  /// Where files are exchanged with the fiscal application, an absolute path that need not exist;
  /// empty for a folder "cfe" within the module's.
  std::string exchange;
  /// The time of the start; without it, the real time.
  std::optional<base::DateTime> now;
  bool realClock = false;
  /// What receipts and notes are printed on.
  platform::Paper paper = platform::kA4Paper;
  /// The workstation's name; empty for the machine's.
  std::string computer;
  /// A file that takes both directions of the conversation; empty for none.
  std::string log;
};

inline constexpr const char* kUsage =
    "usage: caixa-roteiro [--services stub|sqlite:FILE|postgresql:CONNINFO] [--dir FOLDER]\n"
    "                     [--now 2026-11-22T14:30:00] [--clock virtual|real]\n"
    "                     [--paper a4|roll80] [--exchange FOLDER] [--computador NAME]\n"
    "                     [--log FILE]\n";

/// A command line that makes no sense, and why.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Reads the arguments that follow the program's name; UsageError.
Options ReadOptions(const std::vector<std::string>& arguments);

}  // namespace roteiro
