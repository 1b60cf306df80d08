#pragma once

#include <memory>
#include <string>

#include "frame/Valores.h"
#include "frame/servicos/Servico.h"

namespace siblings {

/// Whom a screen is about, as the counter hands him over.
struct Cliente {
  double codigo = 0;
  std::string apelido, nome;

  /// "5 - Dudu (Eduardo Sampaio Leal)".
  std::string PorExtenso() const;
};

/// A new service that knows the logged-in user.
template <class Classe>
std::unique_ptr<Classe> CriarServico() {
  std::unique_ptr<Classe> servico = servicos::CriarServico<Classe>();
  servico->DadosDoUsuario(frame::valores().DadosDoUsuario);
  return servico;
}

/// The name of the logged-in user.
std::string NomeDoOperador();

}  // namespace siblings
