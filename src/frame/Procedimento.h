#pragma once

#include <cstdint>
#include <string_view>

#include "base/RuntimeError.h"

namespace frame {

/// The step that a procedure has reached, for the location text of an error.
using Ponto = std::int16_t;

/// Reports an error that a procedure caught, with the location made of the module's name, the
/// procedure's tag and its step. While a report is already being made the error goes on to the
/// caller.
void RelatarErro(const base::RuntimeError& erro, std::string_view etiqueta, Ponto ponto);

/// Runs the body of a procedure that has a tag, such as ", frmCaixaOperar, Form_Load, Ponto: ". No
/// run-time error leaves it: it goes to the one reporter, and the procedure ends. What the body has
/// told its caller by then stands.
template <class Corpo>
void Procedimento(std::string_view etiqueta, Corpo corpo) {
  Ponto ponto = 1;
  try {
    corpo(ponto);
  } catch (const base::RuntimeError& erro) {
    RelatarErro(erro, etiqueta, ponto);
  }
}

}  // namespace frame
