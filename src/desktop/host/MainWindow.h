#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <deque>
#include <functional>
#include <memory>
#include <string>

#include "base/Record.h"

namespace desktop {
class DesktopQt;
}

namespace host {

class Module;
class Notice;
class frmEntrada;

/// The window of the host application: first the sign-in, then the container that the module's
/// counter lives in. Closed in mid-work, it lets everything unwind, then frees the customer who is
/// being served. While a sale or a movement of the register is being confirmed, whose coupon may be
/// out, it does not close: it says why, and closes by itself as soon as that has ended.
class MainWindow final : public QWidget {
 public:
  explicit MainWindow(desktop::DesktopQt& desktop);
  ~MainWindow() override;

  /// Called when the window has closed for good.
  std::function<void()> onClosed;

  /// Called when somebody has signed in and the counter is open.
  std::function<void()> onSignedIn;

  void ShowSignIn();
  /// Shows the sentence in a box as soon as the operator is at a screen, nothing running.
  void Tell(const std::string& sentence);

 private:
  void OpenCashDesk(base::RecordSetPtr user);
  void TellAtRest();
  /// Closes once nothing is being confirmed any more; until then a notice stands on the screen.
  void CloseAfterwards();
  void FollowConfirmation();
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

  desktop::DesktopQt& desktop_;
  QWidget* container_;
  QPointer<Notice> notice_;  ///< While the window is to close and must not yet.
  QTimer confirmation_;
  std::deque<std::string> news_;
  QTimer rest_;
  std::unique_ptr<frmEntrada> signIn_;
  std::unique_ptr<Module> module_;
};

}  // namespace host
