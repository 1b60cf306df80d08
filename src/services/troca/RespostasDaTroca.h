#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace services {

// What became of an export, by the paths that it was given: its answer may lie where it is awaited,
// among the late ones, or in the archive. Files are only looked at, and as well as it can be: what
// is out of reach counts as not there.

/// The bytes of the answer; nothing while there is none, or somebody may still be writing it.
std::optional<std::string> LerResposta(const std::string& retorno);

/// Whether the outbound file was taken back, so that no application can take it any more.
bool FoiRetirado(const std::string& envio);

/// Puts the answer where it is awaited: from wherever it lies, else as a new file of these bytes.
/// False when there is neither, or it cannot be put there.
bool DevolverResposta(const std::string& retorno, std::string_view bytes);

}  // namespace services
