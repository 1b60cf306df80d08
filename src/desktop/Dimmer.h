#pragma once

#include <QPainterPath>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <vector>

namespace desktop {

/// Darkens one window of the host: a veil over it that the mouse passes through, since what may be
/// used meanwhile is not for a picture to decide. Each Apply is undone by one Remove.
class Dimmer {
 public:
  /// Behind a screen (0): the veil lies beneath the screen in front. Behind a wait panel (1): it
  /// lies over all and leaves out the panels that `waiting` tells, in coordinates of the window.
  Dimmer(QWidget& window, std::function<QPainterPath()> waiting);
  ~Dimmer();
  Dimmer(const Dimmer&) = delete;
  Dimmer& operator=(const Dimmer&) = delete;

  void Apply(int intensity);
  void Remove();
  void Clear();
  int Count() const { return static_cast<int>(intensities_.size()); }
  /// Whether the veil lies over the screens too.
  bool CoversAll() const { return !intensities_.empty() && intensities_.back() != 0; }

  /// Puts the veil just beneath a child of the window, or on top of all for null.
  void PlaceBeneath(QWidget* screen);

 private:
  void Update();

  std::vector<int> intensities_;
  /// A child of the window, which may take it along when it goes.
  QPointer<QWidget> veil_;
};

}  // namespace desktop
