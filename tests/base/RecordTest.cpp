#include <gtest/gtest.h>

#include <limits>

#include "base/Record.h"
#include "support/Table.h"

namespace {

using base::DateTime;
using base::Null;
using base::RecordSet;
using base::Value;
using support::ResultOf;

TEST(Value, IsReadInEveryType) {
  const Value money = base::ToCurrency("12,5");
  const Value date = DateTime(2026, 12, 22, 8, 0, 0);
  struct Case {
    Value value;
    std::string text, number, amount, integer, truth;
  };
  const Case cases[] = {
      {Null(), "", "0", "0", "0", "False"},
      {true, "True", "-1", "-1", "-1", "True"},
      {false, "False", "0", "0", "0", "False"},
      {std::int32_t{41}, "41", "41", "41", "41", "True"},
      {2.5, "2,5", "2.5", "2,5", "2", "True"},
      {-0.5, "-0,5", "-0.5", "-0,5", "0", "True"},
      {1e15, "1000000000000000", "1e+15", "error 6", "error 6", "True"},
      {money, "12,5", "12.5", "12,5", "12", "True"},
      {date, "22/12/2026 08:00:00", "error 13", "error 13", "error 13", "error 13"},
      {"1.234,55", "1.234,55", "1234.55", "1234,55", "1235", "True"},
      {"0,00", "0,00", "0", "0", "0", "False"},
      {"True", "True", "error 13", "error 13", "error 13", "True"},
      {" false ", " false ", "error 13", "error 13", "error 13", "False"},
      {"", "", "error 13", "error 13", "error 13", "error 13"},
      {"Rex", "Rex", "error 13", "error 13", "error 13", "error 13"},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(base::ToText(each.value));
    const Value& value = each.value;
    EXPECT_EQ(base::ToText(value), each.text);
    EXPECT_EQ(ResultOf([&] { return support::Exact(base::ToDouble(value)); }), each.number);
    EXPECT_EQ(ResultOf([&] { return base::ToText(base::ToCurrency(value)); }), each.amount);
    EXPECT_EQ(ResultOf([&] { return base::ToText(base::ToInt32(value)); }), each.integer);
    EXPECT_EQ(ResultOf([&] { return base::ToText(base::ToBool(value)); }), each.truth);
  }
}

TEST(Value, ReadsAsDateAndByVal) {
  EXPECT_EQ(base::ToDate(Value("22/12/2026")), DateTime(2026, 12, 22));
  EXPECT_EQ(base::ToDate(Value(DateTime(2026, 12, 22))), DateTime(2026, 12, 22));
  for (const Value& none : {Value(), Value(2.0), Value("ontem"), Value(true)}) {
    EXPECT_EQ(ResultOf([&] { return base::ToText(base::ToDate(none)); }), "error 13");
  }
  EXPECT_EQ(base::Val(Value("12,5")), 12);
  EXPECT_EQ(base::Val(Value()), 0);
  EXPECT_EQ(base::Val(Value(12.5)), 12) << "of the field's text, which has a comma";
}

RecordSet Animals() {
  RecordSet rows({"Codigo", "Nome", "Peso"});
  rows.Append({std::int32_t{1}, "Rex", 12.5});
  rows.Append({std::int32_t{2}, "Mimi", Null()});
  return rows;
}

TEST(RecordSet, WalksItsRows) {
  RecordSet rows = Animals();
  EXPECT_EQ(base::ToText(rows.Fields("NOME")), "Rex") << "names without regard to case";
  EXPECT_EQ(base::ToText(rows.Field("nome")), "Rex");
  rows.MoveNext();
  EXPECT_TRUE(base::IsNull(rows.Fields("Peso")));
  rows.MoveNext();
  EXPECT_TRUE(rows.Eof());
  EXPECT_EQ(ResultOf([&] { return base::ToText(rows.Fields("Nome")); }), "error 5");
  EXPECT_EQ(ResultOf([&] { return rows.MoveNext(), std::string(); }), "error 5");
  rows.MoveFirst();
  EXPECT_EQ(base::ToText(rows.Fields("Codigo")), "1");

  std::string names;
  base::ForEachRow(rows, [&] { names += base::ToText(rows.Fields("Nome")) + ";"; });
  EXPECT_EQ(names, "Rex;Mimi;");
  EXPECT_TRUE(rows.Eof());
}

TEST(RecordSet, RefusesWhatItDoesNotHold) {
  RecordSet rows = Animals();
  EXPECT_EQ(ResultOf([&] { return base::ToText(rows.Fields("Raça")); }), "error 9");
  EXPECT_EQ(ResultOf([&] { return base::ToText(rows.Fields(3)); }), "error 9");
  EXPECT_EQ(ResultOf([&] { return rows.FieldName(3); }), "error 9");
  EXPECT_EQ(rows.FieldName(2), "Peso");
  EXPECT_EQ(ResultOf([&] { return rows.Append({"Rex"}), std::string(); }), "error 5");
  EXPECT_EQ(rows.RecordCount(), 2);
  const base::RecordSetPtr never;
  EXPECT_EQ(ResultOf([&] { return std::to_string(never->RecordCount()); }), "error 91");
}

TEST(RecordSet, GivesItsRowsAsOneText) {
  RecordSet rows = Animals();
  EXPECT_EQ(rows.GetString(), "1\tRex\t12,5\r2\tMimi\t\r");
  EXPECT_TRUE(rows.Eof());
  rows.MoveFirst();
  rows.MoveNext();
  EXPECT_EQ(rows.GetString("; ", "\n"), "2; Mimi; \n") << "from the current row on";
}

}  // namespace
