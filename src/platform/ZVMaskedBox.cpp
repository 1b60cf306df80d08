#include "platform/ZVMaskedBox.h"

#include <algorithm>
#include <cstddef>

namespace platform {
namespace {

constexpr char kPlace = '#';
constexpr char kBlank = '_';

}  // namespace

ZVMaskedBox::ZVMaskedBox(Container& parent, std::string_view name, Kind kind, std::string_view mask)
    : EditBox(parent, name, kind) {
  Mask.Assign(std::string(mask));
  Text.Assign(EmptyText());
}

std::string ZVMaskedBox::EmptyText() const {
  std::string text = Mask();
  std::ranges::replace(text, kPlace, kBlank);
  return text;
}

std::string ZVMaskedBox::UnmaskedText() const {
  std::string digits;
  for (const char c : Text()) {
    if (c >= '0' && c <= '9') digits += c;
  }
  return digits;
}

void ZVMaskedBox::Written(const PropertyBase& property) {
  if (&property == &Mask || (&property == &Text && Text().empty())) Text.Assign(EmptyText());
  EditBox::Written(property);
  if (&property == &Mask) Select(0, 0);
}

bool ZVMaskedBox::Fits(const std::string& text) const {
  const std::string& mask = Mask();
  if (mask.empty() || text.size() != mask.size()) return false;
  for (std::size_t i = 0; i < mask.size(); ++i) {
    const char c = text[i];
    if (mask[i] == kPlace ? (c < '0' || c > '9') && c != kBlank : c != mask[i]) return false;
  }
  return true;
}

void ZVMaskedBox::Insert(char32_t character) {
  if (Mask().empty()) {
    EditBox::Insert(character);
    return;
  }
  if (character < U'0' || character > U'9') return;
  if (!Fits(Shown())) {
    // A text that code wrote and that is not of the mask's form gives way to the digit.
    Replace(EmptyText(), 0);
  }
  if (SelLength() > 0) Erase(true);
  std::string text = Shown();
  auto at = static_cast<std::size_t>(Caret());
  while (at < text.size() && Mask()[at] != kPlace) ++at;
  if (at >= text.size()) return;
  text[at] = static_cast<char>(character);
  ++at;
  while (at < text.size() && Mask()[at] != kPlace) ++at;
  Replace(text, at);
}

void ZVMaskedBox::Erase(bool forward) {
  if (!Fits(Shown())) {
    EditBox::Erase(forward);
    if (Shown().empty()) Replace(EmptyText(), 0);
    return;
  }
  std::string text = Shown();
  auto first = static_cast<std::size_t>(SelStart());
  auto end = first + static_cast<std::size_t>(SelLength());
  if (first == end) {
    if (forward) {
      while (first < text.size() && Mask()[first] != kPlace) ++first;
    } else {
      while (first > 0 && Mask()[first - 1] != kPlace) --first;
      if (first == 0) return;
      --first;
    }
    if (first >= text.size()) return;
    end = first + 1;
  }
  for (std::size_t i = first; i < end; ++i) {
    if (Mask()[i] == kPlace) text[i] = kBlank;
  }
  Replace(text, first);
}

}  // namespace platform
