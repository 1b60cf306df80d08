#pragma once

#include <QPainterPath>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <vector>

namespace platform {
class Form;
}

namespace desktop {

/// Darkens one window of the host: a veil over it that the mouse passes through, since what may be
/// used meanwhile is not for a picture to decide. Each Apply is undone by one Remove.
class Dimmer {
 public:
  /// Behind a screen (0): the veil lies beneath the screen in front. Behind a wait panel (1): it
  /// lies over all that is up, beneath what is shown later, and leaves out the panels that
  /// `waiting` tells, in coordinates of the window.
  Dimmer(QWidget& window, std::function<QPainterPath()> waiting);
  ~Dimmer();
  Dimmer(const Dimmer&) = delete;
  Dimmer& operator=(const Dimmer&) = delete;

  /// `inFront` is the modal screen that is up, or null.
  void Apply(int intensity, const platform::Form* inFront);
  void Remove();
  void Clear();
  int Count() const { return static_cast<int>(veils_.size()); }
  /// Whether the veil lies over this screen too, which is in front now.
  bool Covers(const platform::Form& inFront) const {
    return IsForWait() && veils_.back().inFront == &inFront;
  }

  /// Puts the veil just beneath a child of the window, or on top of all for null.
  void PlaceBeneath(QWidget* screen);

 private:
  struct Applied {
    int intensity;
    const platform::Form* inFront;  ///< Only compared: it may have gone.
  };

  bool IsForWait() const { return !veils_.empty() && veils_.back().intensity != 0; }
  void Update();

  std::vector<Applied> veils_;
  /// A child of the window, which may take it along when it goes.
  QPointer<QWidget> veil_;
};

}  // namespace desktop
