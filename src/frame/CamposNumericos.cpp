#include "frame/CamposNumericos.h"

#include <algorithm>

#include "base/Text.h"

namespace frame {
namespace {

/// Keys that type nothing (Enter, Esc, Tab) are not for a filter of characters.
bool EhDeControle(char32_t tecla) {
  return tecla < 32 && tecla != platform::kBackspaceCharacter;
}

bool EhDigito(char32_t tecla) {
  return tecla >= U'0' && tecla <= U'9';
}

}  // namespace

void PreencherSeVazio(platform::EditBox& campo, std::string_view zero) {
  if (campo.Text->empty()) campo.Text = std::string(zero);
}

void Normalizar(platform::EditBox& campo, std::string_view zeroSeInvalido,
                std::string_view zeroSeVazio, std::string_view mascara) {
  if (!base::IsNumeric(campo.Text())) campo.Text = std::string(zeroSeInvalido);
  const std::string aparado = base::Trim(campo.Text());
  campo.Text = aparado.empty() || aparado == "," ? std::string(zeroSeVazio)
                                                 : base::Format(LerDouble(campo), mascara);
}

void FiltrarTeclaDeDinheiro(const platform::EditBox& campo, char32_t& tecla) {
  if (tecla == U'.') tecla = U',';
  if (EhDigito(tecla) || tecla == platform::kBackspaceCharacter || EhDeControle(tecla)) return;
  const auto virgulas = [](const std::string& texto) { return std::ranges::count(texto, ','); };
  if (tecla != U',' || virgulas(campo.Shown()) > virgulas(campo.SelectedText())) tecla = 0;
}

void FiltrarTeclaDeInteiro(char32_t& tecla) {
  if (!EhDigito(tecla) && tecla != platform::kBackspaceCharacter && !EhDeControle(tecla)) tecla = 0;
}

void SelecionarTudo(platform::EditBox& campo) {
  campo.SelectAll();
}

std::string TextoDeValor(const base::Value& valor) {
  if (base::IsNull(valor)) return std::string(kZeroEmDinheiro);
  if (valor.Is<std::string>()) return base::ToText(valor);
  const base::Currency quantia = base::ToCurrency(valor);
  const bool centavos = quantia.TenThousandths() % 100 == 0;
  return centavos ? base::FormatMoney(quantia) : base::ToText(quantia);
}

}  // namespace frame
