// The text for the fiscal application, byte for byte.

#include <gtest/gtest.h>

#include "base/Numbers.h"
#include "fiscal/Registros.h"

namespace fiscal {
namespace {

TEST(Header, NamesTheConsumerAsFarAsHeIsToBeNamed) {
  struct Case {
    Cabecalho header;
    std::string record;
  };
  const std::string none(14, '|');
  for (const Case& each : std::initializer_list<Case>{
           {{1, "", "12", 7, "N"}, "|00|65||1|0|||N" + none + "7|N|1.00.00|\r\n"},
           {{2, "123.456.789-09", "12", 7, "N"},
            "|00|65||2|0|123.456.789-09||N||N||||||||||||7|N|1.00.00|\r\n"},
           {{3, "", "12", 123, " "}, "|00|65||3|00000012|||N" + none + "123| |1.00.00|\r\n"},
           {{3, "", "123456789012", 7, "N"}, "|00|65||3|56789012|||N" + none + "7|N|1.00.00|\r\n"},
           {{3, "", "", 7, "N"}, "|00|65||3||||N" + none + "7|N|1.00.00|\r\n"},
       }) {
    EXPECT_EQ(RegistroDeCabecalho(each.header), each.record);
  }
}

TEST(Items, StandInFixedWidthsWithAComma) {
  struct Case {
    Item item;
    std::string_view record;
  };
  for (const Case& each : std::initializer_list<Case>{
           {{"1", "123", "2,00", "10,50", "-1,00", "20,00"},
            "|05|001|000123|00000002,000|00000010,500|-000000001,00|000000020,00|\r\n"},
           {{" 27 ", "7654321", "1,5", "1.234,56", "0,00", "1.851,84"},
            "|05|027|654321|00000001,500|00001234,560|000000000,00|000001851,84|\r\n"},
           // Discounts spread over the sale are positive in its lines, and stay so.
           {{"1000", "", "0,001", "12.345.678,90", "2,00", "0"},
            "|05|000||00000000,001|12345678,900|000000002,00|000000000,00|\r\n"},
           {{"1", "ração", "0,0005", "123456789,1", "-0,004", "1.234.567.890,00"},
            "|05|001|0ração|00000000,001|123456789,100|000000000,00|1234567890,00|\r\n"},
           {{"1", "1", "", "dez", "2,5x", "1e2"},
            "|05|001|000001|00000000,000|00000000,000|000000002,50|000000100,00|\r\n"},
       }) {
    std::string records = "before";
    AcrescentarItem(records, each.item);
    EXPECT_EQ(records, "before" + std::string(each.record));
  }
}

TEST(Payments, FollowTheirTenderAndTheShareOfTheProducts) {
  struct Case {
    std::string_view sequence;
    std::int16_t tender;
    std::string_view value, due, sale, products;
    std::string_view record;
  };
  constexpr std::string_view kNoDate = "__/__/____";
  for (const Case& each : std::initializer_list<Case>{
           // The tenders.
           {"1", 1, "50,00", kNoDate, "50,00", "50", "|10|01|01|000000050,00||||||||"},
           {"2", 2, "50,00", "15/12/2026", "50,00", "50",
            "|10|02|02|000000050,00|||||000000050,00|01|15|"},
           {"3", 3, "50,00", kNoDate, "50,00", "50", "|10|03|03|000000050,00|10|01|01|2||||"},
           {"4", 4, "50,00", kNoDate, "50,00", "50", "|10|04|03|000000050,00|20|01|01|2||||"},
           {"5", 5, "50,00", kNoDate, "50,00", "50",
            "|10|05|08|000000050,00|||||000000050,00|01|22|"},
           {"6", 6, "50,00", "05/12/2026", "50,00", "50",
            "|10|06|10|000000050,00|||||000000050,00|01|5|"},
           {"12", 7, "50,00", "", "50,00", "50", "|10|12|10|000000050,00|||||000000050,00|01|22|"},
           {"100", 8, "50,00", kNoDate, "50,00", "50", "|10|100|17|000000050,00||||||||"},
           {"1", 0, "", "", "50,00", "50", "|10|01|"},
           // The share: services stay outside, over-payment and rounding are not made up for.
           {"1", 1, "100,00", kNoDate, "100,00", "40", "|10|01|01|000000040,00||||||||"},
           {"1", 1, "1.500,00", kNoDate, "1.100,00", "1100", "|10|01|01|000001500,00||||||||"},
           {"1", 3, "100,00", kNoDate, "180,00", "100", "|10|01|03|000000055,56|10|01|01|2||||"},
           {"2", 4, "80,00", kNoDate, "180,00", "100", "|10|02|03|000000044,44|20|01|01|2||||"},
           {"1", 1, "90,00", kNoDate, "90,00", "100", "|10|01|01|000000100,00||||||||"},
           // Below 1,00 the sale counts as nothing, and 1.000,00 reads as more than that.
           {"1", 1, "0,50", kNoDate, "0,50", "0,5", "|10|01|01|000000000,00||||||||"},
           {"1", 2, "0,99", "31/12/2026", "0,99", "0,99",
            "|10|01|02|000000000,00|||||000000000,00|01|31|"},
           {"1", 1, "1.000,00", kNoDate, "1.000,00", "250", "|10|01|01|000000250,00||||||||"},
       }) {
    std::string records;
    AcrescentarPagamento(records, {.sequencia = each.sequence,
                                   .forma = each.tender,
                                   .valor = each.value,
                                   .vencimento = each.due,
                                   .valorDaVenda = each.sale,
                                   .totalDeProdutos = base::ToCurrency(each.products),
                                   .hoje = base::DateTime(2026, 11, 22, 14, 30)});
    EXPECT_EQ(records, std::string(each.record) + "\r\n");
  }
}

}  // namespace
}  // namespace fiscal
