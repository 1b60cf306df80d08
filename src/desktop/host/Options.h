#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace host {

/// The command line cannot be understood; `what()` is a Portuguese sentence.
class BadOption : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// What the command line asks of the host application.
struct Options {
  std::string database;      ///< "sqlite:FILE" or "postgresql:CONNINFO"; empty for the default.
  std::string folder;        ///< Where the settings files lie; empty for the user's data folder.
  std::string fiscalFolder;  ///< Where files are exchanged; empty for what the settings say.
  bool help = false;

  /// Throws BadOption.
  static Options Read(const std::vector<std::string>& arguments);
  static const char* Help();
};

/// The value behind the name at `at`, which moves on to it. Throws BadOption where there is none.
const std::string& ValueAfter(const std::vector<std::string>& arguments, std::size_t& at);

}  // namespace host
