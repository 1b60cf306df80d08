#pragma once

#include <string>
#include <string_view>

#include "base/Currency.h"
#include "base/Numbers.h"
#include "base/Value.h"
#include "platform/EditBox.h"
#include "platform/ZVNumberBox.h"

/// What the number fields of the screens share: how they are read, what may be typed into them, and
/// how their text is put in order when they are left.
namespace frame {

inline constexpr std::string_view kZeroEmDinheiro = "0,00";

inline base::Currency LerCurrency(const platform::EditBox& campo) {
  return base::ToCurrency(campo.Text());
}
inline double LerDouble(const platform::EditBox& campo) {
  return base::ToDouble(campo.Text());
}

/// A field about to be read gets a zero when it is empty.
void PreencherSeVazio(platform::EditBox& campo, std::string_view zero);

/// Text that is not numeric becomes `zeroSeInvalido`; then "," or nothing becomes `zeroSeVazio`,
/// and any number is put through the mask.
void Normalizar(platform::EditBox& campo, std::string_view zeroSeInvalido = kZeroEmDinheiro,
                std::string_view zeroSeVazio = kZeroEmDinheiro,
                std::string_view mascara = base::kMoneyMask);

/// KeyPress of a field for money: digits, backspace and one comma pass, a point becomes a comma,
/// all else is dropped. What is selected is about to be replaced and does not count.
void FiltrarTeclaDeDinheiro(const platform::EditBox& campo, char32_t& tecla);
/// KeyPress of a field for whole numbers: digits and backspace pass.
void FiltrarTeclaDeInteiro(char32_t& tecla);

/// Selects the whole text.
void SelecionarTudo(platform::EditBox& campo);

/// A service's amount as a field shows it: through "#,##0.00", but a value with more decimals keeps
/// them, and a text stays as the service wrote it.
std::string TextoDeValor(const base::Value& valor);

}  // namespace frame
