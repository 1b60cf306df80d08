#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "platform/Desktop.h"

namespace desktop {

/// A message box over the host's window: the operator answers it with the mouse, with Enter on the
/// marked button, with the arrows, with S and N, or leaves it with Esc.
class MessageBoxView final : public QWidget {
 public:
  /// Without a host's window it is a window of its own.
  MessageBoxView(const platform::MessageBox& box, QWidget* host, std::function<void()> onAnswer);

  bool IsAnswered() const { return answered_; }
  /// The answer; that of leaving the box until it is answered.
  platform::Answer Given() const { return answer_; }
  /// Where the button of an answer is, for who points at it.
  QRect ButtonBox(platform::Answer answer) const;
  QString Text() const { return text_; }

 private:
  struct Button {
    platform::Answer answer;
    QString words;
    QRect box = QRect();
  };

  void Arrange();
  /// Draws the text, if there is a painter, and tells how tall it is.
  double LayOut(double width, QPainter* painter, QPointF at) const;
  void Give(platform::Answer answer);
  void Mark(int index);
  int ButtonAt(const QPoint& place) const;
  void PaintIcon(QPainter& painter) const;

  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

  QString text_, title_;
  platform::Icon icon_;
  std::vector<Button> buttons_;
  std::function<void()> onAnswer_;
  QRect box_, textBox_;
  int indent_ = 0;  ///< Of a text that is lower than the picture beside it.
  int marked_ = 0, hovered_ = -1, pressed_ = -1;
  bool answered_ = false;
  platform::Answer answer_;
};

}  // namespace desktop
