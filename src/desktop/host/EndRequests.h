#pragma once

#include <QSocketNotifier>
#include <memory>

class QWidget;

namespace desktop {
class DesktopQt;
}

namespace host {

/// A request of the system to end (logging out, shutting down) closes the window as the operator
/// would, so that nobody stays locked. One at a time.
class EndRequests {
 public:
  EndRequests(QWidget& window, const desktop::DesktopQt& desktop);

 private:
  static void Pass(int signal);
  void Close();

  QWidget& window_;
  const desktop::DesktopQt& desktop_;
  static inline int sockets_[2] = {-1, -1};
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace host
