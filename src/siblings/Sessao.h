#pragma once

#include <string>

namespace siblings {

/// Whom a screen is about, as the counter hands them over.
struct Cliente {
  double codigo = 0;
  std::string apelido, nome;

  /// "5 - Dudu (Eduardo Sampaio Leal)".
  std::string PorExtenso() const;
};

/// The name of the logged-in user.
std::string NomeDoOperador();

}  // namespace siblings
