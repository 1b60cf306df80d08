#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "services/Demonstracao.h"
#include "services/Travas.h"
#include "services/VendasRegistradas.h"

/// What the command prints, for people to read.
namespace banco {

void Mostrar(std::ostream& saida, const std::vector<services::VendaRegistrada>& vendas);
void Mostrar(std::ostream& saida, const std::vector<services::Trava>& travas);
void Mostrar(std::ostream& saida, const std::vector<services::UsuarioDeDemonstracao>& usuarios);

}  // namespace banco
