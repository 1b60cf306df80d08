#include "platform/Desktop.h"

#include "base/RuntimeError.h"

namespace platform {
namespace {

Desktop*& Installed() {
  static Desktop* desktop = nullptr;
  return desktop;
}

}  // namespace

Desktop& Desktop::Current() {
  return base::Required(Installed());
}

void Desktop::Install(Desktop* desktop) {
  Installed() = desktop;
}

}  // namespace platform
