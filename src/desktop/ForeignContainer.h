#pragma once

#include <QWidget>
#include <memory>

#include "platform/Form.h"

class QWindow;

namespace desktop {

/// A container within a window of another process, named by that window's own number, so that the
/// module can live in a host that is not of Qt. It follows the window's size and takes the keyboard
/// when it is clicked. Works where windows of other processes can be adopted (X11).
class ForeignContainer final : public QWidget {
 public:
  /// Null when there is no such window, or the platform does not let it be adopted.
  static std::unique_ptr<ForeignContainer> In(platform::WindowHandle window);
  ~ForeignContainer() override;

 private:
  explicit ForeignContainer(std::unique_ptr<QWindow> window);
  bool eventFilter(QObject* watched, QEvent* event) override;
  void FollowSize();

  std::unique_ptr<QWindow> window_;
};

}  // namespace desktop
