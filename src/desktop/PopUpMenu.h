#pragma once

#include <QMenu>
#include <QPoint>
#include <QString>
#include <functional>
#include <vector>

namespace desktop {

/// A menu that pops up in the look of the cash desk.
class PopUpMenu {
 public:
  /// `over` is the widget that the menu belongs to.
  explicit PopUpMenu(QWidget& over);

  void Add(const QString& words, bool enabled, std::function<void()> act, bool ticked = false);
  /// Waits for the operator; what the entry chosen does, or nothing.
  std::function<void()> Choose(const QPoint& at);

 private:
  QMenu menu_;
  std::vector<std::function<void()>> acts_;
};

}  // namespace desktop
