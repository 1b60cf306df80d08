#pragma once

#include "platform/ZVNumberBox.h"

namespace frame {

/// Makes a field one for an amount of money where the screen has no keys of its own for it: only an
/// amount with at most two decimals can be typed (ZVNumberBox::isAmount), its text is selected when
/// the focus arrives, and what is no number when the focus leaves, a lone comma, becomes zero. An
/// empty field stays empty for its screen to judge.
void LigarCampoDeValor(platform::ZVNumberBox& campo);
/// The same for a quantity, which has as many decimals as are typed; a point is always a comma.
void LigarCampoDeQuantidade(platform::ZVNumberBox& campo);

}  // namespace frame
