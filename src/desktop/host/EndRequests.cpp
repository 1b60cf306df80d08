#include "desktop/host/EndRequests.h"

#include <sys/socket.h>
#include <unistd.h>

#include <QGuiApplication>
#include <QSessionManager>
#include <QTimer>
#include <QWidget>
#include <csignal>

#include "desktop/DesktopQt.h"
#include "platform/Form.h"

namespace host {

EndRequests::EndRequests(QWidget& window, const desktop::DesktopQt& desktop)
    : window_(window), desktop_(desktop) {
  QObject::connect(
      qGuiApp, &QGuiApplication::commitDataRequest, &window,
      [this](QSessionManager& session) {
        // A session that ends while something is being confirmed has to be ended once more.
        if (!window_.close() && platform::Form::CommandsHeld::Any()) session.cancel();
      },
      Qt::DirectConnection);
  if (socketpair(AF_UNIX, SOCK_STREAM, 0, sockets_) != 0) return;
  notifier_ = std::make_unique<QSocketNotifier>(sockets_[1], QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, &window, [this] {
    char signal = 0;
    if (read(sockets_[1], &signal, 1) == 1) Close();
  });
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) std::signal(signal, &Pass);
}

void EndRequests::Pass(int) {
  const char signal = 1;
  [[maybe_unused]] const auto written = write(sockets_[0], &signal, 1);
}

/// Not in the middle of a call to the database, which is painted around.
void EndRequests::Close() {
  constexpr int kMilliseconds = 50;
  if (!desktop_.IsPainting()) {
    window_.close();
  } else {
    QTimer::singleShot(kMilliseconds, &window_, [this] { Close(); });
  }
}

}  // namespace host
