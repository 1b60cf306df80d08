#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Control.h"

namespace platform {

/// A list to choose one item from. Writing ListIndex with an item that was not the present one
/// raises Click; writing Text chooses the item of that text, or none, in silence.
class ZVComboBox final : public Control {
 public:
  /// Codes may pad an item with blanks and put data behind them: the operator sees only the first
  /// hundred characters, trimmed.
  static constexpr std::size_t kShownCharacters = 100;

  ZVComboBox(Container& parent, std::string_view name);

  Property<std::string> Text{*this, "Text"};
  /// The chosen item, counted from 0; -1 for none. A number without an item is error 5.
  Property<std::int32_t> ListIndex{*this, "ListIndex", -1};
  Property<std::int32_t> ListCount{*this, "ListCount", 0};
  /// The item that the last AddItem made; -1 after Clear.
  Property<std::int32_t> NewIndex{*this, "NewIndex", -1};
  /// Grows with each change of the items.
  Property<std::int32_t> Revision{*this, "Revision"};

  /// The operator opens the list.
  Event<> DropDown;

  void AddItem(std::string_view text, std::int32_t data = 0);
  void Clear();
  /// Error 5 when there is no such item.
  const std::string& List(std::int32_t index) const;
  std::int32_t ItemData(std::int32_t index) const;
  void ItemData(std::int32_t index, std::int32_t data);
  /// The item of that data, or -1.
  std::int32_t IndexOfData(std::int32_t data) const;

  /// The operator's choice, which raises Click also for the item already chosen.
  void Pick(std::int32_t index);
  bool TakeKey(const KeyStroke& stroke) override;
  /// A text as the operator sees it.
  static std::string ShownForm(std::string_view text);
  std::string Words() const override { return ShownForm(Text()); }

 protected:
  void Written(const PropertyBase& property) override;

 private:
  struct Item {
    std::string text;
    std::int32_t data = 0;
  };
  const Item& At(std::int32_t index) const;
  void Choose(std::int32_t index);

  std::vector<Item> items_;
  std::int32_t chosen_ = -1;
};

}  // namespace platform
