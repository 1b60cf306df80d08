#include <gtest/gtest.h>

#include <algorithm>

#include "base/Text.h"
#include "support/Table.h"

namespace {

using support::ResultOf;

TEST(Text, CountsCharactersNotBytes) {
  EXPECT_EQ(base::Length("Ração"), 5U);
  EXPECT_EQ(base::Length("a\u00A0b"), 3U);
  EXPECT_EQ(base::Length("🐶 Rex"), 5U);

  EXPECT_EQ(base::Left("Ração úmida", 5), "Ração");
  EXPECT_EQ(base::Left("Ração", 99), "Ração");
  EXPECT_EQ(base::Right("Injeção", 3), "ção");
  EXPECT_EQ(base::Right("ção", 99), "ção");
  EXPECT_EQ(base::Mid("Vermífugo", 4, 3), "míf");
  EXPECT_EQ(base::Mid("Vermífugo", 5), "ífugo");
  EXPECT_EQ(base::Mid("ção", 3, 9), "o");
  EXPECT_EQ(base::Mid("ção", 99), "");
  EXPECT_EQ(ResultOf([] { return base::Mid("ção", 0); }), "error 5");
}

TEST(Text, IsPaddedToAWidthInCharacters) {
  EXPECT_EQ(base::PadRight("Ração", 8), "Ração   ");
  EXPECT_EQ(base::PadRight("Ração", 5), "Ração");
  EXPECT_EQ(ResultOf([] { return base::PadRight("Ração", 4); }), "error 5");
  EXPECT_EQ(ResultOf([] { return base::Space(-1); }), "error 5");
}

TEST(Text, IsTrimmedOfBlanksAlone) {
  EXPECT_EQ(base::Trim("  a b  "), "a b");
  EXPECT_EQ(base::Trim("   "), "");
  EXPECT_EQ(base::Trim("\ta\t"), "\ta\t");
  EXPECT_EQ(base::Trim("\u00A0a"), "\u00A0a");
}

TEST(Text, ChangesCaseAndLosesAccents) {
  for (const auto& row : support::Table(R"(
    João D'Ávila    | JOÃO D'ÁVILA    | joão d'ávila    | joao d'avila
    áàâãäéêíóôõúüç  | ÁÀÂÃÄÉÊÍÓÔÕÚÜÇ  | áàâãäéêíóôõúüç  | aaaaaeeiooouuc
    ÁÀÂÃÄÉÊÍÓÔÕÚÜÇ  | ÁÀÂÃÄÉÊÍÓÔÕÚÜÇ  | áàâãäéêíóôõúüç  | aaaaaeeiooouuc
    Ñandú Ÿ ÿ       | ÑANDÚ Ÿ Ÿ       | ñandú ÿ ÿ       | nandu y y
    Łódź Čapek Őz   | ŁÓDŹ ČAPEK ŐZ   | łódź čapek őz   | lodz capek oz
    Straße Æ æ Ø    | STRAßE Æ Æ Ø    | straße æ æ ø    | strasse ae ae o
    1ª via, nº 3    | 1ª VIA, Nº 3    | 1ª via, nº 3    | 1a via, no 3
    × ÷ µ 7% @ 🐶   | × ÷ µ 7% @ 🐶   | × ÷ µ 7% @ 🐶   | × ÷ µ 7% @ 🐶
  )")) {
    EXPECT_EQ(base::Upper(row[0]), row[1]);
    EXPECT_EQ(base::Lower(row[0]), row[2]);
    EXPECT_EQ(base::Fold(row[0]), row[3]);
  }
}

TEST(Text, FoldsWhateverWayItsAccentsAreWritten) {
  EXPECT_EQ(base::Fold("Joa\u0303o"), base::Fold("João"));
  EXPECT_EQ(base::Fold("AC\u0327A\u0303O"), "acao");
  EXPECT_EQ(base::Fold("a\u00A0b"), "a b") << "a blank that does not break is a blank";
  EXPECT_EQ(base::Fold(base::Upper("ração à mão")), base::Fold("Racao a mao"));
}

TEST(Text, IsSearchedAndReplaced) {
  EXPECT_TRUE(base::Contains("Ração", ""));
  EXPECT_FALSE(base::Contains("", "a"));
  EXPECT_FALSE(base::Contains("", "")) << "nothing is found in an empty text";

  EXPECT_EQ(base::Replace("a\u00A0b\u00A0c", "\u00A0", "\n"), "a\nb\nc");
  EXPECT_EQ(base::Replace("aaa", "aa", "b"), "ba");
  EXPECT_EQ(base::Replace("abc", "", "x"), "abc");

  using Parts = std::vector<std::string>;
  EXPECT_EQ(base::Split("a\tb\t\tc", '\t'), (Parts{"a", "b", "", "c"}));
  EXPECT_EQ(base::Split(";", ';'), (Parts{"", ""}));
}

TEST(Text, IsOrderedAsAPortugueseReaderOrdersIt) {
  const std::vector<std::string> sorted = {
      "",          "1 via",   "10 vias", "2 vias", "abacate", "ábaco", "Ana",
      "Ana Paula", "Anabela", "ávila",   "banho",  "Banho",   "cão",   "cãozinho",
      "carrapato", "maca",    "maçã",    "mação",  "pe",      "pé",    "Pé",
      "sabia",     "sabiá",   "sábia",   "Ução",   "xampu",   "Zé",    "zebu",
  };
  for (std::size_t i = 0; i < sorted.size(); ++i) {
    EXPECT_EQ(base::CompareAsRead(sorted[i], sorted[i]), 0) << sorted[i];
    for (std::size_t j = i + 1; j < sorted.size(); ++j) {
      EXPECT_LT(base::CompareAsRead(sorted[i], sorted[j]), 0) << sorted[i] << " < " << sorted[j];
      EXPECT_GT(base::CompareAsRead(sorted[j], sorted[i]), 0) << sorted[j] << " > " << sorted[i];
    }
  }
}

TEST(Text, ThatIsNotUtf8IsReadByteByByte) {
  struct Case {
    std::string bytes;
    std::u32string characters;
    const char* reason;
  };
  const Case cases[] = {
      {"a\xE7"
       "o",
       U"a\uFFFDo", "a letter of a one-byte code page"},
      {"\x80", U"\uFFFD", "a byte that only continues"},
      {"\xC3", U"\uFFFD", "cut off"},
      {"\xE2\x82", U"\uFFFD\uFFFD", "cut off"},
      {"\xC0\xAF", U"\uFFFD\uFFFD", "a slash in two bytes"},
      {"\xE0\x80\xAF", U"\uFFFD\uFFFD\uFFFD", "a slash in three bytes"},
      {"\xED\xA0\x80", U"\uFFFD\uFFFD\uFFFD", "half of a pair"},
      {"\xF4\x90\x80\x80", U"\uFFFD\uFFFD\uFFFD\uFFFD", "above the last character"},
      {"\xFF", U"\uFFFD", "a byte that stands in no text"},
  };
  for (const Case& each : cases) {
    EXPECT_EQ(base::ToCharacters(each.bytes), each.characters) << each.reason;
  }
  const std::u32string all = U"a\u00E9\u20AC\U0001F436\U0010FFFF";
  EXPECT_EQ(base::ToCharacters(base::FromCharacters(all)), all);
}

}  // namespace
