#pragma once

#include <cstdint>

#include "platform/Colors.h"
#include "platform/Toolbar.h"

namespace frame {

/// What is painted: the window of the object itself, or the toolbar on it.
enum : std::int16_t { kFundoDaJanela = 1, kFundoDaToolbar = 2 };

/// Gives a toolbar its background.
void PintarFundoDaToolbar(platform::Toolbar& toolbar, platform::Color pincel, std::int16_t modo);

}  // namespace frame
