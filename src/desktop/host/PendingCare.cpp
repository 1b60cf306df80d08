#include "desktop/host/PendingCare.h"

#include <utility>

#include "desktop/DesktopQt.h"
#include "platform/Input.h"
#include "services/Banco.h"

namespace host {

PendingCare::PendingCare(desktop::DesktopQt& desktop, std::shared_ptr<services::Banco> bank,
                         std::chrono::milliseconds interval) {
  QObject::connect(&timer_, &QTimer::timeout, [&desktop, bank = std::move(bank)] {
    if (!bank->TemPendente() || !desktop.IsResting()) return;
    platform::input::Run([&bank] { bank->CuidarDoPendente(); });
  });
  timer_.start(interval);
}

}  // namespace host
