#include "sale/CodigoDeBalanca.h"

#include "base/Numbers.h"
#include "base/Text.h"
#include "sale/Aritmetica.h"

namespace sale {

using base::Currency;

namespace {

constexpr std::size_t kCodigoInternoEm = 2, kDigitosDoCodigoInterno = 6;
constexpr std::size_t kPesoOuPrecoEm = 8, kDigitosDoPesoOuPreco = 5;

enum Formato : std::int32_t { kPreco = 1, kPeso = 2 };

/// The five digits with the comma after the first `inteiros`.
Currency ComVirgula(const std::string& codigo, std::size_t inteiros) {
  return base::ToCurrency(
      base::Mid(codigo, kPesoOuPrecoEm, inteiros) + "," +
      base::Mid(codigo, kPesoOuPrecoEm + inteiros, kDigitosDoPesoOuPreco - inteiros));
}

}  // namespace

std::string CodigoInternoDaBalanca(const std::string& codigo) {
  return base::ToText(
      base::Val(base::Trim(base::Mid(codigo, kCodigoInternoEm, kDigitosDoCodigoInterno))));
}

std::optional<Currency> QuantidadeDaBalanca(const std::string& codigo, std::int32_t formato,
                                            Currency valorUnitario) {
  switch (formato) {
    case kPreco:
      return base::ToCurrency(
          Dividir(base::ToDouble(ComVirgula(codigo, 3)), base::ToDouble(valorUnitario)));
    case kPeso:
      return ComVirgula(codigo, 2);
    default:
      return std::nullopt;
  }
}

}  // namespace sale
