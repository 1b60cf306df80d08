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
  enum class Mode { kWork, kPortraits, kDemonstration, kMeasure, kHelp };

  Mode mode = Mode::kWork;
  std::string database;      ///< "sqlite:FILE" or "postgresql:CONNINFO"; empty for the default.
  std::string folder;        ///< Where the settings files lie; empty for the user's data folder.
  std::string fiscalFolder;  ///< Where files are exchanged; empty for what the settings say.
  std::string pictures;      ///< Where a script leaves its pictures.
  std::string screenFile;    ///< Where what is on the screen is told, if at all: see ScreenFile.

  /// Throws BadOption.
  static Options Read(const std::vector<std::string>& arguments);
  static const char* Help();
};

}  // namespace host
