#pragma once

#include "platform/EditBox.h"

namespace platform {

/// A field for text of several lines.
class ZVMemo final : public EditBox {
 public:
  ZVMemo(Container& parent, std::string_view name) : EditBox(parent, name, Kind::kMemo) {
    multiline = true;
  }
};

}  // namespace platform
