#include "desktop/Stage.h"

namespace {

using stage::SmallForm;

class ShutdownTest : public stage::Stage {
 protected:
  /// The host is closed now; `unwound` counts how often it was told that all has ended.
  void Close() {
    desktop->ShutDown([this] {
      ++unwound;
      EXPECT_TRUE(desktop->IsIdle());
    });
  }
  int unwound = 0;
};

TEST_F(ShutdownTest, AtRestTheHostMayGoAtOnce) {
  SmallForm form;
  Embed(form);
  EXPECT_TRUE(desktop->IsIdle());
  Close();
  Settle();
  EXPECT_EQ(unwound, 1);
}

TEST_F(ShutdownTest, UnwindsABoxOverADialogOverAHandler) {
  SmallForm counter("frmBalcao"), dialog;
  bool afterDialog = false, afterBox = false;
  counter.button.Click = [&] {
    dialog.ShowModal();
    afterDialog = true;
  };
  dialog.button.Click = [&] {
    Ask("Continua?");
    afterBox = true;
  };
  Embed(counter);
  Then({[&] { Click(dialog.button); },
        [&] {
          EXPECT_FALSE(desktop->IsIdle());
          Close();
          EXPECT_EQ(unwound, 0);
        }});
  Click(counter.button);
  EXPECT_EQ(unwound, 0);  // The act itself stood on the stack until here.
  Settle();
  EXPECT_EQ(unwound, 1);
  EXPECT_FALSE(afterBox);
  EXPECT_FALSE(afterDialog);
  EXPECT_FALSE(dialog.IsVisible());
  EXPECT_EQ(desktop->Box(), nullptr);
}

TEST_F(ShutdownTest, UnwindsAWait) {
  SmallForm form;
  bool released = false;
  form.button.Click = [&] {
    struct Release {
      ~Release() { flag = true; }
      bool& flag;
    } release{released};
    while (true) desktop->ProcessEvents();
  };
  Embed(form);
  QTimer::singleShot(20, host.get(), [&] { Close(); });
  Click(form.button);
  EXPECT_TRUE(released);
  Settle();
  EXPECT_EQ(unwound, 1);
}

TEST_F(ShutdownTest, NothingNewWaitsForTheOperatorAfterwards) {
  SmallForm form;
  form.button.Click = [&] {
    Ask("Primeira");
    ADD_FAILURE() << "went on";
  };
  Embed(form);
  Then({[&] { Close(); }});
  Click(form.button);
  bool went = false;
  platform::input::Run([&] {
    Ask("Segunda");
    went = true;
  });
  EXPECT_FALSE(went);
  Settle();
  EXPECT_EQ(unwound, 1);
}

}  // namespace
