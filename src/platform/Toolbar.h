#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Control.h"

namespace platform {

/// A button of a toolbar, found by its key.
class ToolbarButton final : public Object {
 public:
  ToolbarButton(std::string_view key, std::string_view caption, std::string_view image)
      : Object(key) {
    Caption.Assign(std::string(caption));
    Image.Assign(std::string(image));
  }

  Property<std::string> Caption{*this, "Caption"};
  Property<std::string> ToolTipText{*this, "ToolTipText"};
  /// The key of its picture in the toolbar's image lists.
  Property<std::string> Image{*this, "Image"};
  Property<bool> Enabled{*this, "Enabled", true};
  Property<bool> Visible{*this, "Visible", true};

  const std::string& Key() const { return Name(); }
};

/// A row or column of keyed buttons. It takes no focus.
class Toolbar final : public Control {
 public:
  Toolbar(Container& parent, std::string_view name) : Control(parent, name, Kind::kToolbar) {}

  ToolbarButton& Add(std::string_view key, std::string_view caption, std::string_view image);
  /// The button of that key; error 9 when there is none.
  ToolbarButton& Buttons(std::string_view key) const;
  const std::vector<std::unique_ptr<ToolbarButton>>& All() const { return buttons_; }

  Event<ToolbarButton&> ButtonClick;

 private:
  std::vector<std::unique_ptr<ToolbarButton>> buttons_;
};

}  // namespace platform
