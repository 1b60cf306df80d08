#pragma once

#include <cstdint>
#include <string>

namespace integrador {

/// A key in the form of a coupon's, 44 digits: the state (35), the year and month, a CNPJ, the
/// model (59), the number of the device, the number of the coupon, a code, and the check digit,
/// modulo 11. `anoEMes` such as 2611; `numero` and `codigo` have at most six digits.
std::string MontarChave(int anoEMes, std::uint32_t numero, std::uint32_t codigo);

/// The check digit of the digits: weights 2 to 9 from the right, 0 for a remainder below 2.
char DigitoVerificador(const std::string& digitos);

}  // namespace integrador
