#include "platform/ZVComboBox.h"

#include <algorithm>

#include "base/RuntimeError.h"
#include "base/Text.h"

namespace platform {

ZVComboBox::ZVComboBox(Container& parent, std::string_view name)
    : Control(parent, name, Kind::kComboBox) {}

const ZVComboBox::Item& ZVComboBox::At(std::int32_t index) const {
  if (index < 0 || index >= static_cast<std::int32_t>(items_.size())) {
    throw base::RuntimeError(base::Fault::kInvalidArgument);
  }
  return items_[static_cast<std::size_t>(index)];
}

void ZVComboBox::AddItem(std::string_view text, std::int32_t data) {
  Touch();
  items_.push_back({std::string(text), data});
  ListCount.Assign(static_cast<std::int32_t>(items_.size()));
  NewIndex.Assign(ListCount() - 1);
  Revision.Assign(Revision() + 1);
}

void ZVComboBox::Clear() {
  Touch();
  items_.clear();
  ListCount.Assign(0);
  NewIndex.Assign(-1);
  Choose(-1);
  Revision.Assign(Revision() + 1);
}

const std::string& ZVComboBox::List(std::int32_t index) const {
  return At(index).text;
}

std::int32_t ZVComboBox::ItemData(std::int32_t index) const {
  return At(index).data;
}

void ZVComboBox::ItemData(std::int32_t index, std::int32_t data) {
  At(index);
  items_[static_cast<std::size_t>(index)].data = data;
}

std::int32_t ZVComboBox::IndexOfData(std::int32_t data) const {
  const auto found = std::ranges::find(items_, data, &Item::data);
  return found == items_.end() ? -1 : static_cast<std::int32_t>(found - items_.begin());
}

void ZVComboBox::Choose(std::int32_t index) {
  chosen_ = index;
  ListIndex.Assign(index);
  Text.Assign(index < 0 ? std::string() : At(index).text);
}

void ZVComboBox::Written(const PropertyBase& property) {
  Control::Written(property);
  if (&property == &Text) {
    const auto found = std::ranges::find(items_, Text(), &Item::text);
    chosen_ = found == items_.end() ? -1 : static_cast<std::int32_t>(found - items_.begin());
    ListIndex.Assign(chosen_);
  } else if (&property == &ListIndex) {
    const std::int32_t wanted = ListIndex();
    if (wanted < -1 || wanted >= ListCount()) {
      ListIndex.Assign(chosen_);
      throw base::RuntimeError(base::Fault::kInvalidArgument);
    }
    const bool fires = wanted >= 0 && wanted != chosen_;
    Choose(wanted);
    if (fires) Click();
  }
}

void ZVComboBox::Pick(std::int32_t index) {
  At(index);
  Choose(index);
  Click();
}

bool ZVComboBox::TakeKey(const KeyStroke& stroke) {
  const std::int32_t last = ListCount() - 1;
  std::int32_t wanted = ListIndex();
  switch (stroke.key) {
    case Key::kUp:
      wanted = std::max(wanted - 1, 0);
      break;
    case Key::kDown:
      wanted = std::min(wanted + 1, last);
      break;
    case Key::kHome:
      wanted = 0;
      break;
    case Key::kEnd:
      wanted = last;
      break;
    case Key::kCharacter: {
      if (stroke.control || stroke.alt) return false;
      // The next item that begins with the character, round from the present one.
      std::string character;
      base::AppendCharacter(character, stroke.character);
      const std::string start = base::Fold(character);
      for (std::int32_t step = 1; step <= ListCount(); ++step) {
        const std::int32_t at = (std::max(ListIndex(), -1) + step) % ListCount();
        if (!start.empty() && base::Fold(List(at)).starts_with(start)) {
          Pick(at);
          break;
        }
      }
      return true;
    }
    default:
      return false;
  }
  if (last >= 0 && wanted != ListIndex()) Pick(wanted);
  return true;
}

std::string ZVComboBox::ShownForm(std::string_view text) {
  return base::Trim(base::Left(text, kShownCharacters));
}

}  // namespace platform
