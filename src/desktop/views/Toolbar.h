#pragma once

#include "desktop/views/View.h"
#include "platform/Toolbar.h"

namespace desktop {

/// The buttons of a toolbar one below the other, each with its picture and its word. One that is
/// out of action is pale; one that is not visible is left out.
class ToolbarView final : public View {
 public:
  ToolbarView(platform::Toolbar& toolbar, QWidget& parent);

  void LetGo() override;
  /// The keyboard goes through the buttons: arrows, Enter, and Esc to go back.
  void TakeKeyboard();
  /// Where a button is seen; the one chosen last when `button` is null.
  QRect ButtonBox(const platform::ToolbarButton* button) const;

 private:
  using Button = platform::ToolbarButton;
  platform::Toolbar& Bar() const { return static_cast<platform::Toolbar&>(*Shows()); }
  std::vector<Button*> Visible() const;
  Button* ButtonAt(const QPoint& place) const;
  bool IsOpen(const Button* button) const;
  void Choose(Button& button);
  void Step(int by);
  void Hover(Button* button);

  QString ToolTipAt(const QPoint& at) const override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent*) override { update(); }
  void focusOutEvent(QFocusEvent*) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent*) override { Hover(nullptr); }

  Button* hovered_ = nullptr;
  Button* pressed_ = nullptr;
  Button* marked_ = nullptr;  ///< By the keyboard.
  Button* chosen_ = nullptr;
};

}  // namespace desktop
