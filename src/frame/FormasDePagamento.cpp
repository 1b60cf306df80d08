#include "frame/FormasDePagamento.h"

namespace frame {

using servicos::pagamento::Forma;

void OferecerFormasDePagamento(platform::ZVComboBox& combo, std::span<const Forma> formas,
                               bool clienteTemCredito) {
  combo.Clear();
  for (const Forma& forma : formas) {
    if (forma.codigo == servicos::pagamento::kCreditoDoCliente && !clienteTemCredito) continue;
    combo.AddItem(forma.texto, forma.codigo);
  }
  combo.ListIndex = -1;
}

}  // namespace frame
