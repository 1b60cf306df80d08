#pragma once

#include <QWidget>

#include "platform/Form.h"
#include "platform/Object.h"

namespace platform {
class ZVTheme;
}

namespace desktop {

class CloseButton;
class FormView;

/// The dialog around a form that lies in no container: a title to move it by, a close box, a
/// shadow, a place over the middle of the host's window. Without a host's window it is a window of
/// its own.
class FormFrame final : public QWidget, public platform::Observer {
 public:
  FormFrame(platform::Form& form, QWidget* host);
  ~FormFrame() override;

  FormView& View() const { return *view_; }
  void LetGo();
  /// Shows or hides the frame as the form says.
  void Follow();
  /// Gives the form its place over the middle of the host, unless it was given another.
  void Centre();

 private:
  void Changed(platform::Object& object, const platform::PropertyBase& property) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

  int Margin() const;
  /// Whether a theme control bears the title within the form.
  bool HasThemeTitle() const;
  /// The height of the title above the form, 0 without one.
  int TitleHeight() const;
  QRect Box() const;
  /// Where the dialog is gripped, above the form or within it; empty for a form without a title.
  QRect Grip() const;
  QString Title() const;
  void Arrange();
  void MoveTo(const QPoint& box);

  platform::Form* form_;
  platform::ZVTheme* theme_ = nullptr;
  FormView* view_;
  CloseButton* close_;
  bool placed_;           ///< By code or by the operator: stays where it is.
  bool placing_ = false;  ///< What the form tells of its place is our own doing.
  bool dragging_ = false;
  QPoint grippedAt_;
};

}  // namespace desktop
