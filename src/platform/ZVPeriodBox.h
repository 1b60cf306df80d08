#pragma once

#include <string>
#include <string_view>

#include "platform/ZVMaskedBox.h"

namespace platform {

/// A field for a period: two dates in one mask, each "__/__/____" when empty.
class ZVPeriodBox final : public ZVMaskedBox {
 public:
  ZVPeriodBox(Container& parent, std::string_view name);

  Property<std::string> DataInicial{*this, "DataInicial", "__/__/____"};
  Property<std::string> DataFinal{*this, "DataFinal", "__/__/____"};

 protected:
  void Written(const PropertyBase& property) override;
  void Edit(const Change& change) override;

 private:
  void TakeDates();
};

}  // namespace platform
