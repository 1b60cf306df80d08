#include "platform/Toolbar.h"

#include <algorithm>

#include "base/RuntimeError.h"

namespace platform {

ToolbarButton& Toolbar::Add(std::string_view key, std::string_view caption,
                            std::string_view image) {
  buttons_.push_back(std::make_unique<ToolbarButton>(key, caption, image));
  return *buttons_.back();
}

ToolbarButton& Toolbar::Buttons(std::string_view key) const {
  const auto found =
      std::ranges::find_if(buttons_, [&](const auto& each) { return each->Key() == key; });
  if (found == buttons_.end()) throw base::RuntimeError(base::Fault::kIndexOutOfRange);
  return **found;
}

}  // namespace platform
