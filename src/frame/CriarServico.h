#pragma once

#include <memory>

#include "frame/Valores.h"
#include "frame/servicos/Servico.h"

namespace frame {

/// A new service that knows the logged-in user.
template <class Classe>
std::unique_ptr<Classe> CriarServicoComSessao() {
  std::unique_ptr<Classe> servico = servicos::CriarServico<Classe>();
  servico->DadosDoUsuario(valores().DadosDoUsuario);
  return servico;
}

}  // namespace frame
