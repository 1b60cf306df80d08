#pragma once

#include <cstdint>
#include <string_view>

#include "base/RuntimeError.h"
#include "frame/Etiquetas.h"
#include "platform/Object.h"

namespace frame {

/// The step that a procedure has reached, for the location text of an error.
using Ponto = std::int16_t;

/// Reports an error that a procedure caught; its location is made of the module's name, the
/// procedure's tag and its step: "ZOVA_A_Caixa, frmCaixaOperar, Form_Load, Ponto: 2". While a
/// report is already being made the error goes on to the caller.
void RelatarErro(const base::RuntimeError& erro, const Etiqueta& etiqueta, Ponto ponto);

/// Runs the body of a procedure that has a tag. No run-time error leaves it: it goes to the one
/// reporter, and the procedure ends. What the body has told its caller by then stands.
template <class Corpo>
void Procedimento(const Etiqueta& etiqueta, Corpo corpo) {
  Ponto ponto = 1;
  try {
    corpo(ponto);
  } catch (const base::RuntimeError& erro) {
    RelatarErro(erro, etiqueta, ponto);
  }
}

/// The same for a routine of a screen, known by the screen's own name.
template <class Corpo>
void Procedimento(const platform::Object& tela, std::string_view rotina, Corpo corpo) {
  Procedimento(Etiqueta{tela.Name(), rotina}, corpo);
}

}  // namespace frame
