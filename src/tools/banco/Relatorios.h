#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "services/AjustesDaEmpresa.h"
#include "services/ConsultaDeCupons.h"
#include "services/Demonstracao.h"
#include "services/FichaDaVenda.h"
#include "services/FichaDoCliente.h"
#include "services/Travas.h"
#include "services/VendasRegistradas.h"

/// What the command prints, for people to read.
namespace banco {

void Mostrar(std::ostream& saida, const std::vector<services::VendaRegistrada>& vendas);
void Mostrar(std::ostream& saida, const std::vector<services::Trava>& travas);
void Mostrar(std::ostream& saida, const std::vector<services::Cupom>& cupons);
void Mostrar(std::ostream& saida, const std::vector<services::UsuarioDeDemonstracao>& usuarios);
void Mostrar(std::ostream& saida, const std::vector<services::Ajuste>& ajustes);

// One fact a line, in an order that stays.
void Mostrar(std::ostream& saida, const services::FichaDaVenda& ficha);
void Mostrar(std::ostream& saida, std::int32_t codigo, const services::FichaDoCliente& ficha);

}  // namespace banco
