#pragma once

#include <string>
#include <string_view>

/// What can be told of a fiscal code from its digits.
namespace siblings {

/// The judgement of a code that an operator has entered. Nothing against it: all texts but
/// `reconhecido` are empty.
struct Julgamento {
  std::string recusa;       ///< Why it cannot be right, and what to do.
  std::string duvida;       ///< Why it may be wrong, as a question with Yes for "take it".
  std::string reconhecido;  ///< What it means, as far as it is known; also of the first digits.
};

/// The code that the statistics office (IBGE) gives to a municipality: seven digits, the first two
/// of them the state's, the last one a check digit.
Julgamento JulgarMunicipio(std::string_view digitos);

/// The classification of goods of the customs (NCM): eight digits, the first two of them the
/// chapter.
Julgamento JulgarNCM(std::string_view digitos);

}  // namespace siblings
