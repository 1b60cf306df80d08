#pragma once

#include "platform/Control.h"

namespace platform {

/// A panel that other controls lie on.
class PictureBox final : public Control, public Container {
 public:
  PictureBox(Container& parent, std::string_view name) : Control(parent, name, Kind::kPictureBox) {}

  /// Rounded corners, in pixels at 96 dpi; 0 for none.
  Property<std::int16_t> CornerRadius{*this, "CornerRadius"};

  /// Lies over its siblings.
  void BringToFront();
  /// Grows at each call of BringToFront; the renderer raises the panel.
  Property<std::int32_t> ZOrder{*this, "ZOrder"};

  Form& ContainerForm() override { return OwnerForm(); }
  Control* AsControl() override { return this; }
  std::int32_t InnerWidth() const override { return Width(); }
  std::int32_t InnerHeight() const override { return Height(); }

  void SizeChanged(bool byDesign) override;

 private:
  std::int32_t laidWidth_ = 0;
  std::int32_t laidHeight_ = 0;
};

}  // namespace platform
