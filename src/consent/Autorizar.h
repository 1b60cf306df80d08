#pragma once

#include <cstdint>

#include "consent/Autorizacoes.h"
#include "platform/Form.h"

namespace consent {

/// What becomes of the calling screen while the dialog is up.
enum class Chamador {
  kFica,        ///< It stays where it is.
  kAfastaSe,    ///< It moves out of sight, at its full size.
  kDesaparece,  ///< It shrinks to nothing.
  kRecolhe,     ///< Its height does.
};

/// Asks a supervisor to consent to one act, over the host that the caller has darkened. True when
/// they consent. The calling screen is back in its place when this returns.
bool Autorizar(const Autorizacao& autorizacao);
bool Autorizar(const Autorizacao& autorizacao, platform::Form& formulario, Chamador chamador);

}  // namespace consent
