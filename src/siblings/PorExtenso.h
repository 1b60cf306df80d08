#pragma once

#include <cstdint>
#include <string>

#include "base/Currency.h"
#include "base/DateTime.h"

/// Numbers written out in words, as promissory notes have them.
namespace siblings {

/// A whole number in the masculine, as in "mil duzentos e trinta e quatro"; below 0 or from a
/// quadrillion on error 5.
std::string NumeroPorExtenso(std::int64_t numero);

/// An amount in whole centavos, as in "mil e duzentos reais e cinquenta centavos"; error 5 below 0.
std::string ValorPorExtenso(base::Currency valor);

/// "Aos vinte e dois dias do mês de dezembro do ano de dois mil e vinte e seis"; on the first of a
/// month "Ao primeiro dia".
std::string DataPorExtenso(base::DateTime data);

/// "22 de dezembro de 2026".
std::string DataComMesPorExtenso(base::DateTime data);

}  // namespace siblings
