#pragma once

#include "desktop/views/View.h"
#include "platform/ZVTheme.h"

namespace desktop {

/// The title of a screen. Given a size it is a band with the words, by which the dialog is gripped;
/// without one it shows nothing itself, and the frame of the dialog bears the title.
class ZVThemeView final : public View {
 public:
  ZVThemeView(platform::ZVTheme& theme, QWidget& parent);

 private:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace desktop
