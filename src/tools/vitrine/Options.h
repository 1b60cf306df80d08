#pragma once

#include <string>
#include <vector>

#include "desktop/host/Options.h"

namespace vitrine {

/// What the command line asks of the showcase, besides what it asks of the host.
struct Options {
  enum class Mode { kNone, kPortraits, kDemonstration, kMeasure, kTellScreen };

  Mode mode = Mode::kNone;
  std::string pictures;    ///< Where a script leaves its pictures.
  std::string screenFile;  ///< Where what is on the screen is told: see ScreenFile.
  host::Options host;

  /// Whether a script plays, in a clinic of its own.
  bool IsScripted() const { return mode == Mode::kPortraits || mode == Mode::kDemonstration; }

  /// Throws host::BadOption.
  static Options Read(const std::vector<std::string>& arguments);
  static const char* Help();
};

}  // namespace vitrine
