#pragma once

#include "platform/ZVMaskedBox.h"

namespace platform {

/// A field for a date, "__/__/____" when empty.
class ZVDateBox final : public ZVMaskedBox {
 public:
  ZVDateBox(Container& parent, std::string_view name)
      : ZVMaskedBox(parent, name, Kind::kDateBox, "##/##/####") {}
};

}  // namespace platform
