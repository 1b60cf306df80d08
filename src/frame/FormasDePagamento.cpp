#include "frame/FormasDePagamento.h"

#include "base/Numbers.h"
#include "base/Text.h"

namespace frame {

std::int16_t CodigoDaForma(std::string_view texto) {
  return base::ToInt16(base::Val(base::Left(texto, 1)));
}

void OferecerFormasDePagamento(platform::ZVComboBox& combo,
                               std::span<const FormaDePagamento> formas, bool clienteTemCredito) {
  combo.Clear();
  for (const FormaDePagamento& forma : formas) {
    if (forma.codigo == kCreditoDoCliente && !clienteTemCredito) continue;
    combo.AddItem(forma.texto, forma.codigo);
  }
  combo.ListIndex = -1;
}

}  // namespace frame
