#pragma once

#include <string>

namespace frame {

/// The computer's name as the customer lock knows it; "N" for a computer without a name.
std::string PegarNomeDoComputador();

}  // namespace frame
