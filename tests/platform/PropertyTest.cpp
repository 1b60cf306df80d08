// Observable properties, and what a write by code raises.

#include <gtest/gtest.h>

#include "Sample.h"
#include "platform/CheckBox.h"
#include "platform/MSFlexGrid.h"
#include "platform/OptionButton.h"
#include "platform/Property.h"
#include "platform/ZVComboBox.h"
#include "platform/ZVFind.h"
#include "support/FakeDesktop.h"

namespace {

using support::ResultOf;

/// A screen with a control of each kind that has events of its own.
struct EveryKind : support::SampleForm {
  platform::ZVComboBox combo{*this, "combo"};
  platform::ZVFind find{*this, "find"};
  platform::CheckBox check{*this, "check"};
  platform::OptionButton one{panel, "one"}, two{panel, "two"};
  platform::MSFlexGrid grid{*this, "grid"};
};

class Properties : public testing::Test {
 protected:
  support::FakeDesktop desktop;
  support::Trace trace;
  EveryKind form;
};

/// Notes which properties changed, and their new values.
struct Recorder final : platform::Observer {
  void Changed(platform::Object& object, const platform::PropertyBase& property) override {
    trace(object.Name() + "." + std::string(property.Name()) + "=" + base::ToText(property.Get()));
  }
  support::Trace trace;
};

TEST_F(Properties, TellTheirObserversOfNewValuesAlone) {
  Recorder recorder;
  form.ok.Observe(recorder);
  form.ok.Caption = "Confirmar";
  form.ok.Caption = "Confirmar";
  form.ok.Enabled = false;
  form.cancel.Caption = "Fechar";
  EXPECT_EQ(recorder.trace.Take(), "ok.Caption=Confirmar, ok.Enabled=False");
  form.ok.Unobserve(recorder);
  form.ok.Caption = "Ok";
  EXPECT_EQ(recorder.trace.Take(), "");
}

TEST_F(Properties, RefuseWhatIsNotOfTheirKind) {
  const auto set = [](platform::Object& object, const char* name, const base::Value& value) {
    return ResultOf([&] { return object.FindProperty(name)->Set(value), std::string("set"); });
  };
  EXPECT_EQ(set(form.ok, "Enabled", "talvez"), "error 13");
  EXPECT_EQ(set(form.ok, "Left", "Rex"), "error 13");
  EXPECT_EQ(set(form.ok, "Left", 1e10), "error 6");
  EXPECT_EQ(set(form.find, "Status", std::int32_t{70'000}), "error 6");
  EXPECT_EQ(set(form.grid, "Row", std::int32_t{99}), "error 9");
  EXPECT_EQ(set(form.grid, "MouseRow", std::int32_t{1}), "error 438");
}

TEST_F(Properties, WrittenByCodeRaiseNothing) {
  form.Show();
  form.combo.AddItem("a");
  form.combo.AddItem("b");
  form.combo.ListIndex = 1;
  form.one.Value = true;
  for (platform::Control* each : form.Controls()) {
    trace.Focus(*each);
    trace.Click(*each);
    each->KeyDown = [&](platform::KeyStroke&) { trace("KeyDown"); };
    each->KeyPress = [&](char32_t&) { trace("KeyPress"); };
  }
  form.combo.DropDown = [&] { trace("DropDown"); };
  form.grid.RowColChange = [&] { trace("RowColChange"); };
  form.grid.SelChange = [&] { trace("SelChange"); };

  form.first.Text = "Rex";
  form.find.Text = "Rex";
  form.find.Status = 0;
  form.find.DisplayText = "";
  form.ok.Enabled = false;
  form.third.Visible = false;
  form.check.Value = true;
  form.one.Value = true;
  form.one.Value = false;
  form.combo.ListIndex = 1;
  form.combo.ListIndex = -1;
  form.combo.Text = "a";
  form.combo.Clear();
  form.grid.TextMatrix(1, 0, "Rex");
  form.grid.AddItem("Mimi");
  form.grid.Row(2);
  form.grid.RowSel(1);
  form.grid.Sort(platform::SortMode::kTextAscending);
  EXPECT_EQ(trace.Take(), "");
}

TEST_F(Properties, ButAChosenItemAndAnOptionThatComesOnRaiseClick) {
  for (platform::Control* each : form.Controls()) trace.Click(*each);
  form.combo.AddItem("a");
  form.combo.AddItem("b");
  form.combo.ListIndex = 0;
  form.combo.ListIndex = 0;
  form.combo.ListIndex = 1;
  EXPECT_EQ(trace.Take(), "combo.Click, combo.Click") << "an item that was not the present one";
  form.two.Value = true;
  form.two.Value = true;
  form.one.Value = true;
  EXPECT_EQ(trace.Take(), "two.Click, one.Click");
}

}  // namespace
