#pragma once

#include <string_view>

/// The check digits of the Brazilian documents of persons and of companies.
namespace fiscal {

/// Whether the last two of the 11 digits check the first nine. Eleven equal digits do.
bool DigitosDoCPFConferem(std::string_view digitos);
/// Whether the last two of the 14 digits check those before; the number of zeros alone is none.
bool DigitosDoCNPJConferem(std::string_view digitos);

}  // namespace fiscal
