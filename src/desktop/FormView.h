#pragma once

#include <QPainterPath>
#include <QWidget>
#include <unordered_map>

#include "platform/Form.h"
#include "platform/Object.h"

namespace desktop {

class FocusRing;
class View;

/// Shows one form: the views of its controls, the ring around the one with the focus, the pointer.
class FormView final : public QWidget, public platform::Observer {
 public:
  FormView(platform::Form& form, QWidget* parent);
  ~FormView() override;

  /// The form, null once it was let go.
  platform::Form* Shows() const { return form_; }
  View* ViewOf(const platform::Control& control) const;
  /// The form or one of its controls is about to go; the view is hidden and deleted later.
  void LetGo();
  /// Gives the keyboard to the control that has the form's focus, or to the form itself.
  void TakeKeyboard();
  /// The form view of a view gives the keyboard back to the focused control.
  static void GiveBackFocus(QWidget& view);
  /// A form without width or height is out of sight, however shown.
  bool HasSize() const;
  /// The wait panels that are up, in coordinates of `window`.
  QPainterPath WaitPanels(const QWidget& window) const;

  /// The form fills the widget that it lies in, and follows its size.
  void FillContainer();

 private:
  void Changed(platform::Object& object, const platform::PropertyBase& property) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  bool focusNextPrevChild(bool) override { return false; }
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void Build();
  void ShowPointer();

  platform::Form* form_;
  bool fillsContainer_ = false;
  FocusRing* ring_ = nullptr;
  std::unordered_map<const platform::Control*, View*> views_;
};

}  // namespace desktop
