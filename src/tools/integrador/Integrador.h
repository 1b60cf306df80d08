#pragma once

#include <iosfwd>

#include "tools/integrador/Opcoes.h"

namespace integrador {

/// What ends the work from outside.
class Encerramento {
 public:
  virtual ~Encerramento() = default;
  /// Lets the time pass, less when the end is asked for.
  virtual void Esperar(std::chrono::milliseconds tempo) = 0;
  virtual bool Pedido() const = 0;
};

/// Watches the exchange folder until the end is asked for, telling each step in a line. The exit
/// status: 0; 3 when it died as the options ask. std::runtime_error with a Portuguese sentence when
/// it cannot work in the folder.
int Trabalhar(const Opcoes& opcoes, Encerramento& encerramento, std::ostream& conta);

}  // namespace integrador
