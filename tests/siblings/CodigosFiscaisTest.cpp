#include <gtest/gtest.h>

#include "siblings/CodigosFiscais.h"
#include "support/Table.h"

namespace siblings {
namespace {

/// "refused", "doubted" or "taken".
std::string Verdict(const Julgamento& judgement) {
  if (!judgement.recusa.empty()) return "refused";
  return judgement.duvida.empty() ? "taken" : "doubted";
}

TEST(CodigosFiscaisTest, AMunicipalityIsJudgedByItsStateAndItsCheckDigit) {
  for (const auto& row : support::Table(R"(
    3550308  | taken   | São Paulo (SP)       | the city of São Paulo
    3304557  | taken   | Rio de Janeiro (RJ)  | products of two digits count by their sum
    5300108  | taken   | Distrito Federal (DF)| Brasília
    3550307  | doubted | São Paulo (SP)       | another last digit
    3505308  | doubted | São Paulo (SP)       | two digits changed places
    4305871  | taken   | Rio Grande do Sul (RS) | given out against the rule
    4305872  | doubted | Rio Grande do Sul (RS) | the digit by the rule, which it has not
    3450301  | refused |                      | no state
    0000000  | refused |                      | no state
    355030   | refused | São Paulo (SP)       | too short
    3        | refused |                      | not even a state
  )")) {
    const Julgamento judgement = JulgarMunicipio(row[0]);
    EXPECT_EQ(row[1], Verdict(judgement)) << row[0] << ": " << row[3];
    EXPECT_EQ(row[2], judgement.reconhecido) << row[0];
  }
}

TEST(CodigosFiscaisTest, AnNCMIsJudgedByItsChapter) {
  for (const auto& row : support::Table(R"(
    23091000 | taken   | Capítulo 23
    01012100 | taken   | Capítulo 01
    97060000 | taken   | Capítulo 97
    00000000 | refused |
    77000000 | refused |
    98010000 | refused |
    2309100  | refused | Capítulo 23
    2        | refused |
  )")) {
    const Julgamento judgement = JulgarNCM(row[0]);
    EXPECT_EQ(row[1], Verdict(judgement)) << row[0];
    EXPECT_EQ(row.size() > 2 ? row[2] : "", judgement.reconhecido) << row[0];
  }
}

}  // namespace
}  // namespace siblings
