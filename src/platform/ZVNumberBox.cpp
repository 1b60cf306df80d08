#include "platform/ZVNumberBox.h"

#include <algorithm>

namespace platform {
namespace {

/// No amount is longer; a longer text can only be digits that a key held down went on writing.
constexpr std::int32_t kLongestAmount = 24;
constexpr std::size_t kCents = 2;
constexpr std::size_t kGroup = 3;

bool IsDigit(char32_t c) {
  return c >= U'0' && c <= U'9';
}

/// Whether the points, if there are any, leave groups of three digits.
bool IsWhole(std::string_view number) {
  const std::size_t first = number.find('.');
  if (first == std::string_view::npos) return true;
  if (first == 0 || first > kGroup || number.front() == '0') return false;
  const std::string_view groups = number.substr(first);
  for (std::size_t i = 0; i < groups.size(); ++i) {
    if ((groups[i] == '.') != (i % (kGroup + 1) == 0)) return false;
  }
  return groups.size() % (kGroup + 1) == 0;
}

}  // namespace

std::optional<ZVNumberBox::Amount> ZVNumberBox::Read(std::string typed, bool hasTypedPoint) {
  const std::size_t comma = typed.find(',');
  const std::size_t point = typed.rfind('.');
  const Point grouping = hasTypedPoint ? Point::kGroups : Point::kNone;
  if (comma != std::string::npos) {
    const std::string_view cents = std::string_view(typed).substr(comma + 1);
    const bool fits = cents.size() <= kCents && cents.find_first_of(".,") == std::string::npos;
    if (!fits || !IsWhole(std::string_view(typed).substr(0, comma))) return std::nullopt;
    return Amount{std::move(typed), grouping};
  }
  if (point == std::string::npos) return Amount{std::move(typed), Point::kNone};
  if (hasTypedPoint && typed.size() - point - 1 <= kCents) {
    if (!IsWhole(std::string_view(typed).substr(0, point))) return std::nullopt;
    typed[point] = ',';
    return Amount{std::move(typed), Point::kDecimal};
  }
  if (!IsWhole(typed)) return std::nullopt;
  return Amount{std::move(typed), grouping};
}

void ZVNumberBox::SelectAll() {
  // What stood when the focus came is settled: a comma is a comma.
  point_ = Point::kNone;
  EditBox::SelectAll();
}

void ZVNumberBox::Written(const PropertyBase& property) {
  EditBox::Written(property);
  if (&property == &Text) point_ = Point::kNone;
}

void ZVNumberBox::Renewed(const PropertyBase& property) {
  EditBox::Renewed(property);
  if (&property == &Text) hasOnlyDigits_.reset();
}

bool ZVNumberBox::HasOnlyDigits() const {
  if (!hasOnlyDigits_) {
    hasOnlyDigits_ = std::ranges::all_of(Shown(), [](char c) { return c >= '0' && c <= '9'; });
  }
  return *hasOnlyDigits_;
}

bool ZVNumberBox::IsInTheMaking() const {
  // Positions are bytes in what an amount is made of.
  return Length() <= kLongestAmount && static_cast<std::size_t>(Length()) == Shown().size();
}

std::string ZVNumberBox::Typed() const {
  std::string typed = Shown();
  if (point_ == Point::kDecimal) std::ranges::replace(typed, ',', '.');
  return typed;
}

void ZVNumberBox::Take(const Amount& amount, std::size_t caret) {
  Replace(amount.text, caret);
  point_ = amount.point;
}

void ZVNumberBox::TakeUngrouped(const std::string& typed, std::size_t caret) {
  std::string plain = typed;
  std::erase(plain, '.');
  const auto before = std::ranges::count(std::string_view(typed).substr(0, caret), '.');
  if (const auto amount = Read(plain, false)) {
    Take(*amount, caret - static_cast<std::size_t>(before));
  }
}

void ZVNumberBox::Insert(char32_t character) {
  if (!isAmount) return EditBox::Insert(character);
  const bool separates = character == U'.' || character == U',';
  if (!separates && !IsDigit(character)) return;
  if (!separates && HasOnlyDigits()) {
    EditBox::Insert(character);
    hasOnlyDigits_ = true;
    return;
  }
  if (!IsInTheMaking()) return;
  std::string typed = Typed();
  const auto at = static_cast<std::size_t>(SelStart());
  typed.replace(at, static_cast<std::size_t>(SelLength()), 1, static_cast<char>(character));
  const std::size_t limit = static_cast<std::size_t>(MaxLength());
  if (limit > 0 && typed.size() > limit) return;
  const auto amount = Read(typed, character == U'.' || point_ != Point::kNone);
  if (amount) {
    Take(*amount, at + 1);
  } else if (!separates && at + 1 < typed.size()) {
    TakeUngrouped(typed, at + 1);
  }
}

void ZVNumberBox::Erase(bool forward) {
  const bool hadOnlyDigits = isAmount && HasOnlyDigits();
  if (!isAmount || hadOnlyDigits || !IsInTheMaking()) {
    EditBox::Erase(forward);
    if (hadOnlyDigits) hasOnlyDigits_ = true;
    return;
  }
  const auto [from, to] = Erased(forward);
  std::string typed = Typed();
  const auto at = static_cast<std::size_t>(from);
  typed.erase(at, static_cast<std::size_t>(to - from));
  if (const auto amount = Read(typed, point_ != Point::kNone)) {
    Take(*amount, at);
  } else {
    TakeUngrouped(typed, at);
  }
}

}  // namespace platform
