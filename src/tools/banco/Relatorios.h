#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "services/contrato/AjustesDaEmpresa.h"
#include "services/demonstracao/Demonstracao.h"
#include "services/venda/ConsultaDeCupons.h"
#include "services/venda/FichaDaVenda.h"
#include "services/venda/FichaDoCliente.h"
#include "services/venda/Travas.h"
#include "services/venda/VendasRegistradas.h"

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
