#include "frame/modPausar.h"

#include "platform/Desktop.h"

namespace frame {

void Pausar(double segundos) {
  platform::Desktop& desktop = platform::Desktop::Current();
  const double fim = desktop.Elapsed() + segundos;
  while (desktop.Elapsed() < fim) desktop.ProcessEvents();
}

}  // namespace frame
