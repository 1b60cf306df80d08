#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <string>

#include "base/Record.h"

namespace desktop {
class DesktopQt;
}

namespace host {

class Module;
class frmEntrada;

/// The window of the host application: first the sign-in, then the container that the module's
/// counter lives in. Closed in mid-work, it lets everything unwind, then frees the customer who is
/// being served.
class MainWindow final : public QWidget {
 public:
  explicit MainWindow(desktop::DesktopQt& desktop);
  ~MainWindow() override;

  /// Called when the window has closed for good.
  std::function<void()> onClosed;

  void ShowSignIn();

 private:
  void OpenCashDesk(base::RecordSetPtr user);
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

  desktop::DesktopQt& desktop_;
  QWidget* container_;
  std::unique_ptr<frmEntrada> signIn_;
  std::unique_ptr<Module> module_;
};

}  // namespace host
