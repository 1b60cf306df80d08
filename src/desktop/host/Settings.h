#pragma once

#include <string>

namespace host {

/// What the clinic sets for one workstation, from the file aplicacao.ini in the host's folder: text
/// in UTF-8, sections in brackets, key=value lines, names without regard to case, comments behind a
/// semicolon. An empty value and a key that is not there mean the default.
struct Settings {
  enum class Papel { kA4, kBobina80 };

  static constexpr const char* kFileName = "aplicacao.ini";

  /// [Fiscal] Pasta: where files are exchanged with the fiscal application; a path that is not
  /// absolute counts from the folder of the settings. Empty for the host's default.
  std::string pastaFiscal;
  /// [Impressao] Papel: A4 or Bobina80, the 80 mm roll.
  Papel papel = Papel::kA4;
  /// [Impressao] Impressora: its name in the system, empty for the system's default printer, or
  /// "pdf:FOLDER" to print into PDF files; a folder that is not absolute counts from that of the
  /// settings.
  std::string impressora;

  /// The settings of the file in `folder`, the defaults when there is none. std::runtime_error with
  /// a Portuguese sentence, which names the line, when the file cannot be read or understood.
  static Settings Read(const std::string& folder);
  /// Leaves a file with the defaults and what they mean in `folder` when there is none; one that
  /// cannot be written is no hindrance, the defaults hold all the same.
  static void CreateIfMissing(const std::string& folder);
};

}  // namespace host
