#include "frame/CampoDeValor.h"

#include "frame/CamposNumericos.h"

namespace frame {

void LigarCampoDeValor(platform::EditBox& campo) {
  campo.KeyPress = [&campo](char32_t& tecla) { FiltrarTeclaDeDinheiro(campo, tecla); };
  campo.GotFocus = [&campo] { SelecionarTudo(campo); };
  campo.LostFocus = [&campo] {
    if (campo.Text->empty() || base::IsNumeric(campo.Text())) return;
    campo.Text = std::string(kZeroEmDinheiro);
  };
}

}  // namespace frame
