#include "desktop/host/PendingCare.h"

#include <utility>

#include "desktop/DesktopQt.h"
#include "platform/Input.h"
#include "services/Banco.h"

namespace host {

PendingCare::PendingCare(desktop::DesktopQt& desktop, std::shared_ptr<services::Banco> bank,
                         std::chrono::milliseconds interval)
    : bank_(std::move(bank)) {
  QObject::connect(&timer_, &QTimer::timeout, [&desktop, bank = bank_.get()] {
    if (!bank->TemPendente() || !desktop.IsResting()) return;
    platform::input::Run([bank] { bank->CuidarDoPendente(); });
  });
  timer_.start(interval);
}

PendingCare::~PendingCare() {
  bank_->CuidarPelaUltimaVez();
}

}  // namespace host
