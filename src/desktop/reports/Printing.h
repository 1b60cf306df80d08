#pragma once

#include <functional>
#include <string>

#include "platform/ReportPages.h"

namespace desktop::reports {

/// What the host sets for printing.
struct Printing {
  /// What receipts and notes are printed on.
  platform::Paper paper = platform::kA4Paper;
  /// The printer's name in the system; empty for the system's default printer. "pdf:FOLDER" prints
  /// into numbered PDF files in that folder, for a computer without a printer; a folder that is not
  /// absolute counts from that of the module.
  std::string printer;
  /// For scripted runs: where to save a document, given its usual name with the ending, instead of
  /// asking the operator.
  std::function<std::string(const std::string& name)> saveAs;
};

/// Prints the report without asking; `baseFolder` is what a folder of PDF files counts from.
/// std::runtime_error with a sentence that says what stood in the way, for the operator, without
/// what to do next: that depends on where the document was printed from.
void Print(const platform::ReportPages& report, const std::string& printer,
           const std::string& baseFolder);

/// A file name from the title and a time, without an ending.
std::string FileNameOf(const platform::ReportPages& report, base::DateTime now);

}  // namespace desktop::reports
