#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Control.h"

namespace platform {

/// Pictures by key. The renderer owns what they look like; the screens only name them.
class ImageList final : public Control {
 public:
  ImageList(Container& parent, std::string_view name, std::vector<std::string> keys)
      : Control(parent, name, Kind::kImageList), keys_(std::move(keys)) {}

  const std::vector<std::string>& Keys() const { return keys_; }

 private:
  std::vector<std::string> keys_;
};

}  // namespace platform
