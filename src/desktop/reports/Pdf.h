#pragma once

#include <QPageLayout>
#include <string>

#include "platform/ReportPages.h"

namespace desktop::reports {

/// The paper of a page without margins, which the report itself keeps.
QPageLayout LayoutOf(const platform::Paper& paper, const platform::ReportPage& page);

/// Writes the report as a PDF file, each page in the size of its paper. It is written under
/// another name and put into its place when it is whole: `path` holds the whole report, or what it
/// held before. std::runtime_error with a sentence for the operator when that fails.
void WritePdf(const platform::ReportPages& report, const std::string& path);

}  // namespace desktop::reports
