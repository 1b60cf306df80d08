#pragma once

#include <cstdint>

#include "platform/Form.h"
#include "platform/PictureBox.h"
#include "platform/Shape.h"

namespace frame {

/// Rounds the corners of a panel or a form, except on the one system whose frames are square.
void ArredondarCantosDoObjeto(platform::PictureBox& painel, std::uint8_t raio);
void ArredondarCantosDoObjeto(platform::Form& formulario, std::uint8_t raio);

/// What a small form does as it loads: round corners, or on that one system the frame `lshpObj`
/// around it.
void EmoldurarFormulario(platform::Form& formulario, platform::Shape& lshpObj);

}  // namespace frame
