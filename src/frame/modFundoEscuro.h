#pragma once

#include <cstdint>

#include "platform/Form.h"

namespace frame {

/// Darkens a window of the host: intensity 1 behind a wait, 0 behind a dialog.
void AplicarFundoEscuro(platform::WindowHandle janela, std::int16_t intensidade);
void RemoverFundoEscuro(platform::WindowHandle janela);

}  // namespace frame
