#pragma once

#include <string>
#include <vector>

#include "Source.h"

namespace tidy {

/// What a check finds in a file, as "path:line: what"; empty when the file is in order.
using Findings = std::vector<std::string>;

/// Quoted includes go up to the floors above only; no floor sees Qt or an SQL library that is not
/// its own, and the module sees nothing but the standard library.
Findings CheckIncludes(const Source& file);
/// No long files.
Findings CheckLength(const Source& file);
/// No call that goes by the machine's locale, and no look at clock, environment or file system past
/// the places that own them.
Findings CheckCalls(const Source& file);
/// No word about how the work is organised, and no path of a developer's machine.
Findings CheckWords(const Source& file);
/// A class of the service contract names in kMembros just what it declares with a default body that
/// says that the member is missing.
Findings CheckContract(const Source& file);
/// Every header of src is included by some other file.
Findings CheckDeadHeaders(const std::vector<Source>& tree);

}  // namespace tidy
