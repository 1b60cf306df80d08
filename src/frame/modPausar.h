#pragma once

namespace frame {

/// Waits so many seconds with the screens alive: events that arrive run meanwhile.
void Pausar(double segundos);

}  // namespace frame
