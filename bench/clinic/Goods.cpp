#include "clinic/Goods.h"

#include <array>

namespace bench {
namespace {

constexpr std::array<const char*, 12> kKinds{"Ração cães adultos",   "Ração gatos castrados",
                                             "Petisco palito",       "Xampu neutro",
                                             "Antipulgas em pipeta", "Coleira de nylon",
                                             "Areia sanitária",      "Vermífugo",
                                             "Cama redonda",         "Comedouro de inox",
                                             "Bolinha de borracha",  "Suplemento vitamínico"};
constexpr std::array<const char*, 7> kSizes{"1 kg", "3 kg", "15 kg", "P", "M", "G", "250 ml"};

char CheckDigit(const std::string& digits) {
  int sum = 0;
  for (std::size_t i = 0; i < digits.size(); ++i) sum += (digits[i] - '0') * (i % 2 == 0 ? 1 : 3);
  return static_cast<char>('0' + (10 - sum % 10) % 10);
}

}  // namespace

std::string BarcodeAt(std::int64_t place) {
  // A prime that shares no factor with the count of codes: each place gets another one.
  constexpr std::int64_t kStep = 7'654'321;
  constexpr std::int64_t kCodes = 100'000'000;
  constexpr std::int64_t kNonzero = 100'000'000;
  std::string code = "7895" + std::to_string(kNonzero + place * kStep % kCodes).substr(1);
  code += CheckDigit(code);
  return code;
}

std::string ProductNameAt(std::int64_t place) {
  const auto at = static_cast<std::size_t>(place);
  return std::string(kKinds[at % kKinds.size()]) + " modelo " + std::to_string(place / 84) + ' ' +
         kSizes[at % kSizes.size()];
}

}  // namespace bench
