#pragma once

#include <cstdint>
#include <string_view>

#include "frame/servicos/Servico.h"

namespace frame {

/// The one reporter of errors. It first frees the customer that this workstation holds, so that
/// other workstations can serve them, then shows the error viewer. It has no handler of its own.
void ExibirMensagemDeErro(std::int32_t numero, std::string_view descricao, std::string_view local);

/// The error viewer alone, nobody freed: for a service that tells its fault itself while the screen
/// that asked goes on.
void ExibirRelato(std::int32_t numero, std::string_view descricao, std::string_view local);

/// Reports the fault that a service tells of.
void ExibirErroDoServico(servicos::ServicoDeNegocio& servico);

}  // namespace frame
