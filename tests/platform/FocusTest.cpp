// Where the focus goes, which events that raises, and in which order.

#include <gtest/gtest.h>

#include <functional>

#include "Sample.h"
#include "support/FakeDesktop.h"

namespace {

using platform::input::Outcome;
using support::Press;

class Focus : public testing::Test {
 protected:
  Focus() {
    form.Show();
    form.NoteFocus(trace);
  }

  support::FakeDesktop desktop;
  support::Trace trace;
  support::SampleForm form;
};

TEST_F(Focus, LeavesWithValidateThenLostFocusAndArrivesWithGotFocus) {
  EXPECT_EQ(form.Active(), "first");
  EXPECT_EQ(platform::input::Focus(form.second), Outcome::kDone);
  EXPECT_EQ(trace.Take(), "first.Validate, first.LostFocus, second.GotFocus");
  form.third.SetFocus();
  EXPECT_EQ(trace.Take(), "second.Validate, second.LostFocus, third.GotFocus");
  form.third.SetFocus();
  EXPECT_EQ(trace.Take(), "") << "it is there already";
  EXPECT_TRUE(form.third.HasFocus());
}

TEST_F(Focus, StaysWhenValidateRefuses) {
  form.first.Validate = [&](bool& refused) {
    trace("refused");
    refused = true;
  };
  trace.Click(form.ok);
  platform::input::Focus(form.second);
  platform::input::Click(form.ok);
  Press(form, "Tab");
  form.third.SetFocus();
  EXPECT_EQ(trace.Take(), "refused, refused, refused, refused");
  EXPECT_EQ(form.Active(), "first");
  form.first.Validate = [](bool&) {};
  Press(form, "Tab");
  EXPECT_EQ(form.Active(), "second") << "the refusal has left nothing behind";
}

TEST_F(Focus, DoesNotGoWhereItCannotStay) {
  form.second.Enabled = false;
  form.second.SetFocus();
  form.ok.Visible = false;
  form.ok.SetFocus();
  form.panel.Enabled = false;
  form.third.SetFocus();
  form.panel.Enabled = true;
  form.panel.Visible = false;
  form.third.SetFocus();
  form.label.SetFocus();
  form.panel.SetFocus();
  EXPECT_EQ(trace.Take(), "");
  EXPECT_EQ(form.Active(), "first");
}

TEST_F(Focus, MovesOnWithoutValidateWhenItsControlIsTakenAway) {
  form.first.Enabled = false;
  EXPECT_EQ(trace.Take(), "first.LostFocus, second.GotFocus");
  form.second.Visible = false;
  EXPECT_EQ(trace.Take(), "second.LostFocus, third.GotFocus");
  form.panel.Visible = false;
  EXPECT_EQ(trace.Take(), "third.LostFocus, ok.GotFocus");
  form.ok.Enabled = true;
  EXPECT_EQ(trace.Take(), "") << "nothing has changed";
  form.first.Enabled = true;
  form.ok.Enabled = false;
  EXPECT_EQ(trace.Take(), "ok.LostFocus, cancel.GotFocus");
  form.cancel.Enabled = false;
  EXPECT_EQ(trace.Take(), "cancel.LostFocus, first.GotFocus") << "round to the beginning";
}

TEST_F(Focus, FollowsTheHandlersThatMoveIt) {
  struct Case {
    std::function<void()> arrange;
    const char* events;
    const char* active;
  };
  const Case cases[] = {
      {[&] { form.first.LostFocus = [&] { form.third.SetFocus(); }; },
       "first.Validate, third.GotFocus", "third"},
      {[&] { form.first.LostFocus = [&] { form.first.SetFocus(); }; },
       "first.Validate, first.GotFocus", "first"},
      {[&] { form.first.LostFocus = [&] { form.second.Enabled = false; }; },
       "first.Validate, third.GotFocus", "third"},
      {[&] { form.first.Validate = [&](bool&) { form.third.SetFocus(); }; },
       "first.LostFocus, third.GotFocus", "third"},
      {[&] { form.first.Validate = [&](bool&) { form.second.Enabled = false; }; }, "", "first"},
      {[&] { form.first.Validate = [&](bool&) { form.Hide(); }; }, "", "first"},
      {[&] { form.second.GotFocus = [&] { form.third.SetFocus(); }; },
       "first.Validate, first.LostFocus, second.Validate, second.LostFocus, third.GotFocus",
       "third"},
  };
  for (const Case& each : cases) {
    form.Show();
    form.second.Enabled = true;
    form.NoteFocus(trace);
    form.first.SetFocus();
    trace.Take();
    each.arrange();
    platform::input::Focus(form.second);
    EXPECT_EQ(trace.Take(), each.events);
    EXPECT_EQ(form.Active(), each.active);
  }
}

TEST_F(Focus, GoesRoundInTabOrderPastWhatCannotTakeIt) {
  form.second.Enabled = false;
  form.cancel.Visible = false;
  std::string order = form.Active();
  for (int i = 0; i < 3; ++i) {
    Press(form, "Tab");
    order.append(" ").append(form.Active());
  }
  EXPECT_EQ(order, "first third ok first");
  Press(form, "shift+Tab");
  EXPECT_EQ(form.Active(), "ok");
  Press(form, "shift+Tab");
  EXPECT_EQ(form.Active(), "third");
}

TEST_F(Focus, PassesByAFieldThatIsNoTabStop) {
  form.second.tabStop = false;
  Press(form, "Tab");
  EXPECT_EQ(form.Active(), "third");
  platform::input::Click(form.second);
  EXPECT_EQ(form.Active(), "second") << "the mouse reaches it";
  Press(form, "Tab");
  EXPECT_EQ(form.Active(), "third") << "Tab goes on from there";
  form.second.SetFocus();
  Press(form, "shift+Tab");
  EXPECT_EQ(form.Active(), "first");
  form.first.Enabled = false;
  EXPECT_EQ(form.Active(), "third") << "a focus that is pushed out stops where Tab does";
}

TEST_F(Focus, OfTheScreenBeneathStaysUnderBoxesAndModalScreens) {
  support::SampleForm dialog("dialog");
  form.ok.Click = [&] {
    platform::Desktop::Current().Ask({"Aviso", "Caixa", {}, {}, {}});
    dialog.ShowModal();
  };
  desktop.Then([&] { dialog.Hide(); });
  platform::input::Focus(form.ok);
  trace.Take();
  platform::input::Click(form.ok);
  EXPECT_EQ(desktop.TakeBox(), "Aviso");
  EXPECT_EQ(trace.Take(), "");
  EXPECT_EQ(form.Active(), "ok");
}

// Enter and Esc.

TEST_F(Focus, EnterAndEscPressTheButtonsOfTheScreen) {
  form.defaultButton = &form.ok;
  form.cancelButton = &form.cancel;
  trace.Click(form.ok);
  trace.Click(form.cancel);
  Press(form, "Enter");
  EXPECT_EQ(trace.Take(), "first.Validate, first.LostFocus, ok.GotFocus, ok.Click");
  Press(form, "Esc");
  EXPECT_EQ(trace.Take(), "ok.Validate, ok.LostFocus, cancel.GotFocus, cancel.Click");
  Press(form, "Enter");
  EXPECT_EQ(trace.Take(), "cancel.Click") << "on a button Enter presses that one";
  Press(form, "Space");
  EXPECT_EQ(trace.Take(), "cancel.Click");
}

TEST_F(Focus, EnterPressesNoButtonThatCannotBeUsedOrReached) {
  form.defaultButton = &form.ok;
  trace.Click(form.ok);
  form.ok.Enabled = false;
  Press(form, "Enter");
  EXPECT_EQ(trace.Take(), "");
  form.ok.Enabled = true;
  form.first.Validate = [](bool& refused) { refused = true; };
  Press(form, "Enter");
  EXPECT_EQ(trace.Take(), "");
  form.first.Validate = [](bool&) {};
  form.first.KeyPress = [](char32_t& character) { character = 0; };
  Press(form, "Enter");
  EXPECT_EQ(trace.Take(), "") << "the handler has dropped the key";
}

TEST_F(Focus, EnterThatClosedTheScreenPressesNothingMore) {
  form.defaultButton = &form.ok;
  trace.Click(form.ok);
  form.first.KeyPress = [&](char32_t&) { form.Hide(); };
  Press(form, "Enter");
  EXPECT_EQ(trace.Take(), "");
}

TEST_F(Focus, AKeyThatMovedTheFocusGoesNoFurther) {
  form.first.KeyDown = [&](platform::KeyStroke&) { form.second.SetFocus(); };
  form.first.KeyPress = [&](char32_t&) { trace("first.KeyPress"); };
  trace.Take();
  Press(form, "x");
  EXPECT_EQ(trace.Take(), "first.Validate, first.LostFocus, second.GotFocus");
  EXPECT_EQ(form.first.Text() + form.second.Text(), "");
}

}  // namespace
