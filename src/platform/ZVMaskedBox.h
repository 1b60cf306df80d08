#pragma once

#include <string>
#include <string_view>

#include "platform/EditBox.h"

namespace platform {

/// A field whose digits fall into the places of a mask such as "###.###.###-##", shown as
/// "___.___.___-__" while it is empty. Without a mask it is a plain field.
class ZVMaskedBox : public EditBox {
 public:
  ZVMaskedBox(Container& parent, std::string_view name)
      : ZVMaskedBox(parent, name, Kind::kMaskedBox, "") {}

  Property<std::string> Mask{*this, "Mask"};

  /// The mask with no digit in it.
  std::string EmptyText() const;
  bool IsEmpty() const { return Text() == EmptyText(); }
  /// The digits alone.
  std::string UnmaskedText() const;

 protected:
  ZVMaskedBox(Container& parent, std::string_view name, Kind kind, std::string_view mask);

  void Written(const PropertyBase& property) override;
  void Insert(char32_t character) override;
  void Erase(bool forward) override;

 private:
  /// Whether the shown text has the form of the mask, so that typing fills its places.
  bool Fits(const std::string& text) const;
};

}  // namespace platform
