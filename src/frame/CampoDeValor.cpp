#include "frame/CampoDeValor.h"

#include "frame/CamposNumericos.h"

namespace frame {
namespace {

void LigarFoco(platform::ZVNumberBox& campo) {
  campo.GotFocus = [&campo] { SelecionarTudo(campo); };
  campo.LostFocus = [&campo] {
    if (campo.Text->empty() || base::IsNumeric(campo.Text())) return;
    campo.Text = std::string(kZeroEmDinheiro);
  };
}

}  // namespace

void LigarCampoDeValor(platform::ZVNumberBox& campo) {
  campo.isAmount = true;
  LigarFoco(campo);
}

void LigarCampoDeQuantidade(platform::ZVNumberBox& campo) {
  campo.KeyPress = [&campo](char32_t& tecla) { FiltrarTeclaDeDinheiro(campo, tecla); };
  LigarFoco(campo);
}

}  // namespace frame
