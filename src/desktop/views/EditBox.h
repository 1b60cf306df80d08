#pragma once

#include <QString>

#include "desktop/views/EditLayout.h"
#include "desktop/views/View.h"
#include "platform/EditBox.h"

namespace desktop {

/// A field whose text the operator edits. The text, the caret and what each key does are the
/// module's; the view draws them, tells what the mouse selects, and brings in what is composed from
/// dead keys and what is pasted, character by character as if typed.
class EditBoxView : public View {
 public:
  EditBoxView(platform::EditBox& box, QWidget& parent);

  Qt::CursorShape Pointer() const override { return Qt::IBeamCursor; }
  QString Spoken() const override;
  double RingRadius() const override;

 protected:
  platform::EditBox& Box() const { return static_cast<platform::EditBox&>(*Shows()); }
  /// Where the text has its place in the field.
  virtual QRectF TextBox() const;
  /// What a kind of field has beside its text.
  virtual void PaintExtras(QPainter&) {}
  /// A click on the text, after the focus came.
  virtual void Clicked();

  bool IsEditing() const override { return true; }
  void Follow(const platform::PropertyBase& property) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool TakeKey(QKeyEvent& event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

 private:
  struct Style {
    bool amount = false, mainAmount = false, onDeep = false;
  };
  Style StyleOf() const;
  /// An amount that is only read stands on its panel without a frame.
  bool IsBare() const;
  /// Whether it holds a number, set from the right in figures of one width.
  bool IsFigures() const;
  QFont FieldFont() const;
  bool IsPassword() const;
  bool IsWritable() const;

  /// The text on display, dots for a password, what is being composed included.
  QString Shown() const;
  /// Positions of the module in the text on display and back.
  int UnitOf(int character) const;
  int CharacterAt(const QPoint& place) const;
  const EditLayout& LaidOut() const;
  QPointF Origin() const;
  void ShowCaret();

  void PaintGround(QPainter& painter);
  void PaintText(QPainter& painter);

  bool TakeEditingKey(const QKeyEvent& event);
  bool TakeCaretKey(const QKeyEvent& event);
  void SelectTo(int caret, bool extend);
  int Anchor() const;
  int WordEdge(int from, bool forward) const;
  void Erase();
  void Copy();
  void Paste();

  mutable EditLayout layout_;  ///< Follows what is shown.
  QString composing_;
  QPointF scroll_;
  bool selecting_ = false;
  bool hasChanged_ = false;  ///< Since it was last painted.
};

}  // namespace desktop
