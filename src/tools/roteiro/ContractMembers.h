#pragma once

#include <string_view>

namespace roteiro::contract {

/// Whether the contract has a class of this identifier.
bool IsClass(std::string_view className);
/// Whether that class has a member of this name.
bool IsMember(std::string_view className, std::string_view member);

}  // namespace roteiro::contract
