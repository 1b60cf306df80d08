#pragma once

#include <optional>
#include <string>

#include "platform/EditBox.h"

namespace platform {

/// A field for a number, written from the right. What may be typed is for the screen's KeyPress to
/// say, or for the field itself where it holds an amount of money; what was typed is checked when
/// the field is left.
class ZVNumberBox final : public EditBox {
 public:
  ZVNumberBox(Container& parent, std::string_view name) : EditBox(parent, name, Kind::kNumberBox) {}

  void SelectAll() override;

  /// Takes an amount of money and nothing else: digits, one comma with two decimals, points between
  /// the thousands. A point is the decimal sign, as the key of a numeric keypad is meant, and is
  /// shown as the comma that it is, until a third digit follows: then it groups thousands. What
  /// makes no amount, a third decimal say, is not taken. The text is at all times one that reads as
  /// the operator sees it.
  bool isAmount = false;

 private:
  /// What became of the last point that the operator typed since the focus came.
  enum class Point { kNone, kDecimal, kGroups };
  struct Amount {
    std::string text;
    Point point = Point::kNone;
  };
  static std::optional<Amount> Read(std::string typed, bool hasTypedPoint);

  void Written(const PropertyBase& property) override;
  void Renewed(const PropertyBase& property) override;
  void Insert(char32_t character) override;
  void Erase(bool forward) override;
  /// Whether the text is short enough to be an amount in the making with separators in it.
  bool IsInTheMaking() const;
  bool HasOnlyDigits() const;
  /// The text with the operator's point where a comma is shown for it.
  std::string Typed() const;
  void Take(const Amount& amount, std::size_t caret);
  /// The same without grouping, since what was in the middle does not leave groups of three.
  void TakeUngrouped(const std::string& typed, std::size_t caret);

  Point point_ = Point::kNone;
  mutable std::optional<bool> hasOnlyDigits_;
};

}  // namespace platform
