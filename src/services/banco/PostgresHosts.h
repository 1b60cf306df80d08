#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "services/banco/Waiting.h"

namespace services {

/// One address to be tried for a connection: keywords and values as libpq takes them.
struct PostgresHost {
  std::vector<std::pair<std::string, std::string>> options;
  std::string name;  ///< Host, address and port; tells it from the others.
};

/// The addresses that a connection text names, in their order: libpq's own asynchronous connecting
/// neither goes on to the next of several hosts when one keeps silent, nor looks names up without
/// blocking. A name that is not found in time has no address; without any, and for a text that
/// libpq does not understand, the list is empty.
std::vector<PostgresHost> HostsOf(const std::string& text, const Waiting& waiting);

}  // namespace services
