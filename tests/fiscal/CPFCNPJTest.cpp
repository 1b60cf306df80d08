// The check digits, each row a number and why it passes or not.

#include <gtest/gtest.h>

#include "fiscal/CPFCNPJ.h"
#include "support/Table.h"

namespace fiscal {
namespace {

TEST(Documents, AreToldByTheirCheckDigits) {
  for (const std::vector<std::string>& row : support::Table(R"(
    12345678909    | yes | the first digit is 0 for a remainder of 1
    11144477735    | yes | both digits from their remainders
    12345678919    | no  | the first digit
    12345678900    | no  | the second digit
    21345678909    | no  | two digits changed places
    52998224725    | yes |
    10000004600    | yes | remainders of 0 and 1
    00000000000    | yes | equal digits are not looked for
    99999999999    | yes |
    11222333000181 | yes |
    11444777000161 | yes |
    11222333002800 | yes | remainders of 1
    11222333000171 | no  | the first digit
    11222333000182 | no  | the second digit
    12122333000181 | no  | two digits changed places
    11111111111111 | no  | by its digits
    00000000000000 | no  | passes by its digits, and is nobody's number
  )")) {
    const bool valid =
        row[0].size() == 11 ? DigitosDoCPFConferem(row[0]) : DigitosDoCNPJConferem(row[0]);
    EXPECT_EQ(valid, row[1] == "yes") << row[0] << " " << row[2];
  }
}

}  // namespace
}  // namespace fiscal
