#include "platform/ZVPeriodBox.h"

namespace platform {
namespace {

constexpr std::string_view kEmptyDate = "__/__/____";
constexpr std::string_view kBetween = " a ";

}  // namespace

ZVPeriodBox::ZVPeriodBox(Container& parent, std::string_view name)
    : ZVMaskedBox(parent, name, Kind::kPeriodBox, "##/##/#### a ##/##/####") {}

void ZVPeriodBox::TakeDates() {
  const std::string& text = Text();
  const std::size_t between = text.find(kBetween);
  if (between == std::string::npos) return;
  DataInicial.Assign(text.substr(0, between));
  DataFinal.Assign(text.substr(between + kBetween.size()));
}

void ZVPeriodBox::Written(const PropertyBase& property) {
  if (&property == &DataInicial || &property == &DataFinal) {
    if (DataInicial().empty()) DataInicial.Assign(std::string(kEmptyDate));
    if (DataFinal().empty()) DataFinal.Assign(std::string(kEmptyDate));
    Text.Assign(DataInicial() + std::string(kBetween) + DataFinal());
    Select(0, 0);
  }
  ZVMaskedBox::Written(property);
  if (&property == &Text) TakeDates();
}

void ZVPeriodBox::Edit(const Change& change) {
  ZVMaskedBox::Edit(change);
  TakeDates();
}

}  // namespace platform
