#include "frame/modToolbarCores.h"

namespace frame {

void PintarFundoDaToolbar(platform::Toolbar& toolbar, platform::Color pincel, std::int16_t modo) {
  if (modo == kFundoDaJanela || modo == kFundoDaToolbar) toolbar.BackColor = pincel;
}

}  // namespace frame
