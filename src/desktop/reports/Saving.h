#pragma once

#include <QString>
#include <string_view>

namespace desktop::reports {

/// Throws std::runtime_error with a sentence for the operator: `what` ("o PDF") could not be
/// written into that file, what stood in the way as far as it can be told, and what to do about it.
[[noreturn]] void FailToSave(std::string_view what, const QString& path);

}  // namespace desktop::reports
