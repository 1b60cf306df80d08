#include <gtest/gtest.h>

#include "base/Numbers.h"
#include "siblings/PorExtenso.h"
#include "support/Table.h"

namespace siblings {
namespace {

TEST(PorExtensoTest, AmountsAreWrittenOutAsAPortugueseReaderSaysThem) {
  for (const auto& row : support::Table(R"(
    0                    | zero reais
    0,01                 | um centavo
    0,50                 | cinquenta centavos
    1                    | um real
    1,01                 | um real e um centavo
    2,16                 | dois reais e dezesseis centavos
    14                   | quatorze reais
    20                   | vinte reais
    21,99                | vinte e um reais e noventa e nove centavos
    100                  | cem reais
    101                  | cento e um reais
    130                  | cento e trinta reais
    999,00               | novecentos e noventa e nove reais
    1.000                | mil reais
    1.001                | mil e um reais
    1.100                | mil e cem reais
    1.200,50             | mil e duzentos reais e cinquenta centavos
    1.234                | mil duzentos e trinta e quatro reais
    2.000                | dois mil reais
    12.012               | doze mil e doze reais
    100.000              | cem mil reais
    115.300              | cento e quinze mil e trezentos reais
    1.000.000            | um milhão de reais
    1.000.000,01         | um milhão de reais e um centavo
    1.000.001            | um milhão e um reais
    1.001.000            | um milhão e mil reais
    2.300.000            | dois milhões e trezentos mil reais
    2.345.008            | dois milhões trezentos e quarenta e cinco mil e oito reais
    3.000.000.000        | três bilhões de reais
    1.002.000.500        | um bilhão dois milhões e quinhentos reais
    4.000.000.001,10     | quatro bilhões e um reais e dez centavos
    900.000.000.000.200  | novecentos trilhões e duzentos reais
    0,005                | zero reais
    0,015                | dois centavos
    -0,01                | error 5
  )")) {
    EXPECT_EQ(row[1], support::ResultOf([&] { return ValorPorExtenso(base::ToCurrency(row[0])); }))
        << row[0];
  }
}

TEST(PorExtensoTest, DatesAreWrittenOut) {
  EXPECT_EQ("Ao primeiro dia do mês de março do ano de dois mil e trinta",
            DataPorExtenso({2030, 3, 1}));
  EXPECT_EQ("Aos trinta e um dias do mês de dezembro do ano de dois mil e vinte e seis",
            DataPorExtenso({2026, 12, 31}));
  EXPECT_EQ("5 de janeiro de 2027", DataComMesPorExtenso({2027, 1, 5}));
}

}  // namespace
}  // namespace siblings
