#pragma once

#include <QTimer>
#include <chrono>
#include <memory>

namespace desktop {
class DesktopQt;
}

namespace services {
class Banco;
}

namespace host {

/// Takes up, while the screens are at rest, what the services have left to do until the database is
/// there again: a customer to be freed, a registration of which it is not known whether it stands.
class PendingCare {
 public:
  /// What is left is looked at every `interval`; where there is nothing, that costs nothing.
  PendingCare(desktop::DesktopQt& desktop, std::shared_ptr<services::Banco> bank,
              std::chrono::milliseconds interval = std::chrono::seconds(3));
  /// Looks once more: who is still held then stays held for every other workstation.
  ~PendingCare();
  PendingCare(const PendingCare&) = delete;
  PendingCare& operator=(const PendingCare&) = delete;

 private:
  std::shared_ptr<services::Banco> bank_;
  QTimer timer_;
};

}  // namespace host
