#pragma once

#include <QWidget>
#include <functional>

namespace platform {
class ZVComboBox;
}

namespace desktop {

class ScrollBar;

/// The open list of a combo box: a popup with its items, of which one is marked. It picks nothing
/// itself but tells its owner.
class ComboList final : public QWidget {
 public:
  ComboList(const platform::ZVComboBox& combo, QWidget& owner);

  std::function<void(int)> onPick;
  /// A key that the list has no use for.
  std::function<void(QKeyEvent&)> onKey;

  /// Opens below the owner, or above it where there is no room.
  void Open();
  /// The items or the chosen one have changed.
  void Reload();
  int Marked() const { return marked_; }
  /// Scrolls until an item is seen.
  void Reveal(int index);
  /// Where an item is seen, for who points at it.
  QRect ItemBox(int index) const;

 private:
  void Mark(int index);
  int ItemAt(const QPoint& place) const;
  int Room() const;
  int WidestItem() const;
  void Pick(int index);

  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

  const platform::ZVComboBox& combo_;
  QWidget& owner_;
  ScrollBar* bar_;
  int marked_ = -1;
  bool pointed_ = false;  ///< The mouse has pointed at the list since it opened.
};

}  // namespace desktop
