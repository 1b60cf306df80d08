// The coming and going of screens, and the end of a modal show.

#include <gtest/gtest.h>

#include <functional>

#include "Sample.h"
#include "platform/MSFlexGrid.h"
#include "platform/Screens.h"
#include "platform/ZVComboBox.h"
#include "platform/ZVTheme.h"
#include "support/FakeDesktop.h"

namespace {

namespace screens = platform::screens;
using platform::input::Outcome;
using support::Joined;

class FormLife : public testing::Test {
 protected:
  FormLife() {
    trace.Life(form);
    form.first.GotFocus = [this] { trace("first.GotFocus"); };
  }
  std::string Journal() { return Joined(desktop.TakeJournal()); }

  support::FakeDesktop desktop;
  support::Trace trace;
  support::SampleForm form;
};

/// A screen with a list and a grid.
struct ListForm : support::SampleForm {
  platform::ZVComboBox combo{*this, "combo"};
  platform::MSFlexGrid grid{*this, "grid"};
  platform::ZVTheme theme{*this, "theme"};
};

TEST_F(FormLife, LoadsOnTheFirstTouchWhateverItIs) {
  using Touch = std::function<void(ListForm&)>;
  const std::pair<const char*, Touch> touches[] = {
      {"a property read", [](ListForm& f) { (void)f.first.Text->size(); }},
      {"a property written", [](ListForm& f) { f.first.Tag = ""; }},
      {"an item added", [](ListForm& f) { f.combo.AddItem("a"); }},
      {"a list cleared", [](ListForm& f) { f.combo.Clear(); }},
      {"a cell written", [](ListForm& f) { f.grid.TextMatrix(0, 0, "a"); }},
      {"a row added", [](ListForm& f) { f.grid.AddItem("a"); }},
      {"the focus set", [](ListForm& f) { f.first.SetFocus(); }},
      {"the form shown", [](ListForm& f) { f.Show(); }},
  };
  for (const auto& [name, touch] : touches) {
    ListForm fresh;
    int loads = 0;
    fresh.Load = [&] { ++loads; };
    EXPECT_EQ(loads, 0);
    EXPECT_FALSE(fresh.IsLoaded());
    touch(fresh);
    touch(fresh);
    EXPECT_EQ(loads, 1) << name;
  }
}

TEST_F(FormLife, ComesUpInOrder) {
  form.Show();
  EXPECT_EQ(trace.Take(), "frm.Load, frm.Resize, frm.Activate, first.GotFocus");
  form.Show();
  EXPECT_EQ(trace.Take(), "") << "it is up already";
  form.Hide();
  form.Hide();
  form.Show();
  EXPECT_EQ(trace.Take(), "frm.Activate") << "each show activates, the first alone resizes";
  EXPECT_EQ(Journal(), "show frm, show frm, hide frm, show frm");
}

TEST_F(FormLife, ResizesWhenTheRendererSaysSo) {
  form.ResizeTo(9000, 7000);
  EXPECT_EQ(trace.Take(), "frm.Load") << "nobody has seen it yet";
  form.Show();
  trace.Take();
  form.ResizeTo(9000, 7000);
  EXPECT_EQ(trace.Take(), "") << "the same size";
  form.ResizeTo(9500, 7000);
  EXPECT_EQ(trace.Take(), "frm.Resize");
  form.Width = 9600;
  EXPECT_EQ(trace.Take(), "") << "code raises nothing";
}

TEST_F(FormLife, UnloadsUnlessItRefuses) {
  form.Show();
  trace.Take();
  form.UnloadEvent = [&](bool& refused) { refused = true; };
  form.Unload();
  EXPECT_TRUE(form.IsVisible());
  EXPECT_EQ(Journal(), "show frm");
  form.UnloadEvent = [&](bool&) {
    trace("Unload");
    form.Unload();
  };
  form.Unload();
  form.Unload();
  EXPECT_EQ(trace.Take(), "Unload") << "once, not from within and not again";
  EXPECT_EQ(Journal(), "hide frm, forget frm");
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_TRUE(screens::Loaded().empty());
}

TEST_F(FormLife, LoadsAnewWhenTouchedAfterAnUnload) {
  form.Show();
  form.Unload();
  trace.Take();
  EXPECT_EQ(platform::input::Click(form.ok), Outcome::kRefused);
  EXPECT_EQ(trace.Take(), "") << "an act that comes too late is no touch";
  form.first.Text = "novo";
  EXPECT_EQ(trace.Take(), "frm.Load");
  EXPECT_EQ(screens::Loaded(), (std::vector<platform::Form*>{&form}));
  EXPECT_FALSE(form.IsVisible());
  form.Show();
  EXPECT_EQ(trace.Take(), "frm.Resize, frm.Activate, first.GotFocus") << "new to whoever sees it";
  form.Unload();
  EXPECT_EQ(trace.Take(), "frm.Unload");
  EXPECT_TRUE(screens::Loaded().empty());
}

// Modal screens.

TEST_F(FormLife, ModalShowReturnsWhenTheHandlerThatHidItHasEnded) {
  form.ok.Click = [&] {
    form.Hide();
    trace("still in the handler");
  };
  desktop.Then([&] {
    EXPECT_TRUE(form.IsModal());
    platform::input::Click(form.ok);
  });
  form.ShowModal();
  EXPECT_FALSE(form.IsModal());
  EXPECT_EQ(trace.Take(),
            "frm.Load, frm.Resize, frm.Activate, first.GotFocus, still in the handler");
}

TEST_F(FormLife, ModalMayHideOpenAnotherAndShowItselfAgain) {
  support::SampleForm other("other");
  form.ok.Click = [&] {
    form.Hide();
    other.ShowModal();
    form.ShowModal();
    trace("back");
  };
  form.cancel.Click = [&] { form.Hide(); };
  desktop.Then([&] { platform::input::Click(form.ok); });
  desktop.Then([&] {
    EXPECT_TRUE(screens::IsReachable(other)) << "the hidden screen holds nobody";
    EXPECT_EQ(screens::Modal(), &other);
    other.Hide();
  });
  desktop.Then([&] {
    trace("next act");
    EXPECT_TRUE(screens::IsReachable(form)) << "the show goes on";
    platform::input::Click(form.cancel);
  });
  form.ShowModal();
  EXPECT_EQ(trace.Take(),
            "frm.Load, frm.Resize, frm.Activate, first.GotFocus, frm.Activate, back, next act")
      << "the second show only makes it visible again";
  EXPECT_EQ(Journal(), "show frm, hide frm, show other, hide other, show frm, hide frm");
}

TEST_F(FormLife, ModalHoldsTheScreensBeneath) {
  support::SampleForm dialog("dialog"), inner("inner");
  form.Show();
  form.ok.Click = [&] { dialog.ShowModal(); };
  dialog.ok.Click = [&] { inner.ShowModal(); };
  desktop.Then([&] { platform::input::Click(dialog.ok); });
  desktop.Then([&] {
    EXPECT_EQ(platform::input::Click(dialog.cancel), Outcome::kRefused);
    EXPECT_EQ(platform::input::Close(form), Outcome::kRefused);
    EXPECT_EQ(platform::input::Close(inner), Outcome::kDone);
  });
  desktop.Then([&] { EXPECT_EQ(platform::input::Close(dialog), Outcome::kDone); });
  EXPECT_EQ(platform::input::Click(form.ok), Outcome::kDone);
  EXPECT_TRUE(screens::IsReachable(form));
}

TEST_F(FormLife, ModalThatHidHoldsNobodyWhileItsHandlerGoesOn) {
  support::SampleForm dialog("dialog"), inner("inner");
  dialog.ok.Click = [&] { inner.ShowModal(); };
  inner.ok.Click = [&] {
    EXPECT_FALSE(screens::IsReachable(dialog));
    inner.Hide();
    EXPECT_TRUE(screens::IsReachable(dialog));
    EXPECT_FALSE(screens::IsReachable(form)) << "the dialog still holds the rest";
    dialog.Hide();
    EXPECT_TRUE(screens::IsReachable(form));
  };
  form.Show();
  desktop.Then([&] { platform::input::Click(dialog.ok); });
  desktop.Then([&] { platform::input::Click(inner.ok); });
  dialog.ShowModal();
  EXPECT_EQ(screens::Modal(), nullptr);
}

TEST_F(FormLife, ClosingTheHostUnwindsEveryLoop) {
  support::SampleForm dialog("dialog"), inner("inner");
  form.Show();
  form.ok.Click = [&] {
    dialog.ShowModal();
    trace("after dialog");
  };
  dialog.ok.Click = [&] {
    inner.ShowModal();
    trace("after inner");
  };
  desktop.Then([&] { platform::input::Click(dialog.ok); });
  desktop.Then([&] { desktop.Close(); });
  trace.Take();
  platform::input::Click(form.ok);
  EXPECT_EQ(trace.Take(), "") << "no handler goes on";
  EXPECT_FALSE(dialog.IsVisible() || dialog.IsModal());
  EXPECT_FALSE(inner.IsVisible() || inner.IsModal());
  EXPECT_TRUE(form.IsVisible());
  EXPECT_EQ(screens::Modal(), nullptr);
  EXPECT_EQ(platform::input::Depth(), 0);
  EXPECT_FALSE(form.ok.Click.IsRunning());
}

}  // namespace
