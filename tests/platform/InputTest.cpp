// The guards around the operator's acts: what they cannot do, what is dropped, what ends in a box.

#include <gtest/gtest.h>

#include "Sample.h"
#include "platform/Input.h"
#include "platform/Menu.h"
#include "platform/Toolbar.h"
#include "platform/ZVComboBox.h"
#include "platform/ZVFind.h"
#include "support/FakeDesktop.h"

namespace {

namespace input = platform::input;
using input::Outcome;
using support::Joined;
using support::Press;

/// A screen with commands of every kind.
struct CommandForm : support::SampleForm {
  platform::ZVFind find{*this, "find"};
  platform::ZVComboBox combo{*this, "combo"};
  platform::Toolbar toolbar{*this, "toolbar"};
  platform::ToolbarButton& opening = toolbar.Add("Abertura", "Abertura", "abrir");
  platform::MenuItem alter{*this, "mnuAlterar", "Alterar"};
  platform::MenuItem remove{*this, "mnuExcluir", "Excluir"};
  platform::Menu menu{*this, "mnuAlterarExcluir", {&alter, &remove}};
};

class Acts : public testing::Test {
 protected:
  Acts() {
    form.Show();
    desktop.TakeJournal();
  }
  std::string Journal() { return Joined(desktop.TakeJournal()); }
  /// A wait of a second inside a handler.
  void Wait() {
    const double end = desktop.Elapsed() + 1;
    while (desktop.Elapsed() < end) desktop.ProcessEvents();
  }

  support::FakeDesktop desktop;
  support::Trace trace;
  CommandForm form;
};

TEST_F(Acts, DoNotEnterAHandlerThatIsStillRunning) {
  form.ok.Click = [&] {
    trace("in");
    Wait();
    trace("out");
  };
  desktop.After(0.5, [&] { EXPECT_EQ(input::Click(form.ok), Outcome::kDropped); });
  desktop.After(0.6, [&] { EXPECT_EQ(Press(form, "Enter"), Outcome::kDropped); });
  EXPECT_EQ(input::Click(form.ok), Outcome::kDone);
  EXPECT_EQ(trace.Take(), "in, out");
  EXPECT_EQ(Journal(), "beep, beep");
  EXPECT_EQ(Press(form, "Enter"), Outcome::kDone);
  EXPECT_EQ(trace.Take(), "in, out") << "nothing is swallowed afterwards";
}

TEST_F(Acts, TypeIntoAFieldWhileItsOwnSearchWaits) {
  form.find.Click = [&] {
    trace("search");
    Wait();
  };
  form.find.SetFocus();
  desktop.After(0.3, [&] { EXPECT_EQ(input::Type(form, "7"), Outcome::kDone); });
  desktop.After(0.6, [&] { EXPECT_EQ(Press(form, "Enter"), Outcome::kDropped); });
  EXPECT_EQ(Press(form, "Enter"), Outcome::kDone);
  EXPECT_EQ(trace.Take(), "search");
  EXPECT_EQ(form.find.Text(), "7");
  EXPECT_EQ(Journal(), "beep");
}

TEST_F(Acts, ThroughTheDefaultButtonAreDroppedToo) {
  form.defaultButton = &form.ok;
  form.ok.Click = [&] {
    trace("ok");
    form.first.SetFocus();
    Wait();
  };
  desktop.After(0.5, [&] { EXPECT_EQ(Press(form, "Enter"), Outcome::kDropped); });
  EXPECT_EQ(Press(form, "Enter"), Outcome::kDone);
  EXPECT_EQ(trace.Take(), "ok");
  EXPECT_EQ(Journal(), "beep");
}

TEST_F(Acts, DoNotEnterARunningFocusHandlerAgain) {
  form.first.LostFocus = [&] {
    trace("first.LostFocus");
    Wait();
  };
  desktop.After(0.2, [&] { EXPECT_EQ(input::Focus(form.first), Outcome::kDone); });
  desktop.After(0.4, [&] { EXPECT_EQ(input::Focus(form.third), Outcome::kDropped); });
  EXPECT_EQ(input::Focus(form.second), Outcome::kDone);
  EXPECT_EQ(trace.Take(), "first.LostFocus");

  form.third.GotFocus = [&] {
    trace("third.GotFocus");
    Wait();
  };
  form.second.SetFocus();
  trace.Take();
  desktop.After(0.2, [&] { EXPECT_EQ(input::Focus(form.second), Outcome::kDone); });
  desktop.After(0.4, [&] { EXPECT_EQ(input::Focus(form.third), Outcome::kDropped); });
  input::Focus(form.third);
  EXPECT_EQ(trace.Take(), "third.GotFocus");
  EXPECT_EQ(Journal(), "beep, beep");
}

TEST_F(Acts, AreDroppedWhileTheScreenHoldsItsCommands) {
  for (platform::Control* each :
       {static_cast<platform::Control*>(&form.ok), static_cast<platform::Control*>(&form.cancel)}) {
    trace.Click(*each);
  }
  trace.Life(form);
  form.ok.Click = [&] {
    const platform::Form::CommandsHeld held(form);
    Wait();
  };
  desktop.After(0.5, [&] {
    EXPECT_EQ(input::Click(form.cancel), Outcome::kDropped);
    EXPECT_EQ(input::Focus(form.first), Outcome::kDropped);
    EXPECT_EQ(Press(form, "Tab"), Outcome::kDropped);
    EXPECT_EQ(input::Type(form, "x"), Outcome::kDropped);
    EXPECT_EQ(input::Close(form), Outcome::kDropped);
    EXPECT_EQ(input::Choose(form.toolbar, form.opening), Outcome::kDropped);
    EXPECT_EQ(input::Choose(form.alter), Outcome::kDropped);
  });
  input::Click(form.ok);
  EXPECT_EQ(trace.Take(), "");
  desktop.TakeJournal();
  EXPECT_EQ(input::Click(form.cancel), Outcome::kDone);
  EXPECT_EQ(trace.Take(), "cancel.Click");
}

TEST_F(Acts, AreFreeAgainAfterAHandlerThatFailed) {
  form.ok.Click = [&] {
    const platform::Form::CommandsHeld held(form);
    throw base::RuntimeError(base::Fault::kTypeMismatch);
  };
  EXPECT_EQ(input::Click(form.ok), Outcome::kDone);
  EXPECT_EQ(input::Click(form.ok), Outcome::kDone);
  EXPECT_EQ(desktop.TakeBoxes().size(), 2U);
  EXPECT_FALSE(form.AreCommandsHeld());
  EXPECT_EQ(Journal(), "");
}

TEST_F(Acts, AreRefusedWhereAnOperatorCouldNotDoThem) {
  form.combo.AddItem("a");
  form.ok.Enabled = false;
  form.second.Visible = false;
  form.panel.Enabled = false;
  form.opening.Enabled = false;
  form.alter.Visible = false;
  EXPECT_EQ(input::Click(form.ok), Outcome::kRefused);
  EXPECT_EQ(input::Focus(form.second), Outcome::kRefused);
  EXPECT_EQ(input::Click(form.third), Outcome::kRefused);
  EXPECT_EQ(input::Focus(form.label), Outcome::kRefused);
  EXPECT_EQ(input::Select(form.second, 0, 0), Outcome::kRefused);
  EXPECT_EQ(input::Choose(form.toolbar, form.opening), Outcome::kRefused);
  EXPECT_EQ(input::Choose(form.alter), Outcome::kRefused);
  EXPECT_EQ(input::Pick(form.combo, 1), Outcome::kRefused);
  EXPECT_EQ(input::Pick(form.combo, -1), Outcome::kRefused);
  form.combo.Enabled = false;
  EXPECT_EQ(input::Pick(form.combo, 0), Outcome::kRefused);
  EXPECT_EQ(input::DropDown(form.combo), Outcome::kRefused);
  form.Hide();
  EXPECT_EQ(Press(form, "x"), Outcome::kRefused);
}

TEST_F(Acts, ThatFailWhileTheHostClosesEndQuietly) {
  form.ok.Click = [&] {
    desktop.Close();
    throw base::RuntimeError(base::Fault::kOverflow);
  };
  EXPECT_EQ(input::Click(form.ok), Outcome::kUnwound);
  EXPECT_EQ(input::Depth(), 0);
}

TEST_F(Acts, TypeCharacterByCharacterUntilOneIsNotTaken) {
  EXPECT_EQ(input::Type(form, "ção"), Outcome::kDone);
  EXPECT_EQ(form.first.Text(), "ção");
  form.first.KeyPress = [&](char32_t& character) {
    if (character == U'x') form.Hide();
  };
  EXPECT_EQ(input::Type(form, "1x2"), Outcome::kRefused);
  EXPECT_EQ(form.first.Text(), "ção1");
}

TEST_F(Acts, TypeNothingMoreOnceTheHostHasClosed) {
  form.first.KeyPress = [&](char32_t& character) {
    if (character != U'x') return;
    desktop.Close();
    desktop.ProcessEvents();
  };
  EXPECT_EQ(input::Type(form, "1x2"), Outcome::kUnwound);
  EXPECT_EQ(form.first.Text(), "1");
}

TEST_F(Acts, TypeALineBreakAsOneEnter) {
  form.defaultButton = &form.ok;
  form.ok.Click = [&] {
    trace("Enter");
    form.first.SetFocus();
  };
  for (const char* text : {"7\n", "7\r", "7\r\n"}) {
    input::Type(form, text);
    EXPECT_EQ(trace.Take(), "Enter") << form.first.Text();
  }
}

}  // namespace
