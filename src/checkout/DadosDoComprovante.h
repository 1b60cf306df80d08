#pragma once

#include <optional>
#include <string>

#include "base/Record.h"
#include "frame/PainelDeMensagem.h"
#include "platform/DataReport.h"

namespace checkout {

/// What a receipt reads from the services: whose it is, and the lines of the sale.
struct DadosDoComprovante {
  std::string empresa;
  base::RecordSetPtr itens;
};

/// Nothing when either could not be read or there is none: the operator has been told.
std::optional<DadosDoComprovante> LerDadosDoComprovante(double numeroDaVenda);

/// Shows a receipt, or prints it right away, as the company wants it; a wait panel that is up must
/// not lie over the preview.
void EmitirComprovante(platform::DataReport& comprovante, frame::PainelDeMensagem& painel);

}  // namespace checkout
