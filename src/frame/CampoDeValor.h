#pragma once

#include "platform/EditBox.h"

namespace frame {

/// Makes a field one for an amount of money: only what an amount is made of can be typed, its text
/// is selected when the focus arrives, and what is no number when the focus leaves, a lone comma,
/// becomes zero. An empty field stays empty for its screen to judge.
void LigarCampoDeValor(platform::EditBox& campo);

}  // namespace frame
