#include "desktop/FormFrame.h"
#include "desktop/FormView.h"
#include "desktop/Stage.h"

namespace {

using stage::SmallForm;

class ModalTest : public stage::Stage {};

TEST_F(ModalTest, EndsWhenTheHandlerThatHidItHasFinished) {
  SmallForm form;
  bool finished = false, ended = false;
  form.button.Click = [&] {
    form.Hide();
    EXPECT_FALSE(ended);
    finished = true;
  };
  Then({[&] { Click(form.button); }});
  form.ShowModal();
  ended = true;
  EXPECT_TRUE(finished);
  EXPECT_TRUE(AllDone());
}

TEST_F(ModalTest, GoesOnWhenTheHandlerShowsItAgain) {
  SmallForm form, other("frmOutro");
  int presses = 0;
  form.button.Click = [&] {
    ++presses;
    form.Hide();
    other.ShowModal();
    if (presses == 1) form.Show();
  };
  other.button.Click = [&] { other.Hide(); };
  form.defaultButton = &form.button;
  other.defaultButton = &other.button;
  const auto enter = [&] { Key(Qt::Key_Return); };
  Then({enter,
        [&] {
          EXPECT_FALSE(desktop->ViewOf(form)->isVisible());
          enter();
        },
        [&] {
          EXPECT_TRUE(desktop->ViewOf(form)->isVisible());
          enter();
        },
        enter});
  form.ShowModal();
  EXPECT_EQ(presses, 2);
  EXPECT_TRUE(AllDone());
}

TEST_F(ModalTest, TheScreenBeneathHearsNothing) {
  SmallForm counter("frmBalcao"), dialog;
  int clicks = 0;
  counter.button.Click = [&] { ++clicks; };
  dialog.button.Click = [&] { dialog.Unload(); };
  Embed(counter);
  Then({[&] {
          Click(counter.button);
          Click(counter.second);
          QTest::keyClicks(&WidgetOf(counter.first), QStringLiteral("abc"));
          EXPECT_EQ(&Focus(), &WidgetOf(dialog.first));
        },
        [&] { Click(dialog.button); }});
  platform::input::Run([&] { dialog.ShowModal(); });
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(counter.Active(), "first");
  EXPECT_EQ(counter.first.Text(), "");
  Type("de volta");
  EXPECT_EQ(counter.first.Text(), "de volta");
}

TEST_F(ModalTest, ABoxHoldsTheScreenItStandsOn) {
  SmallForm form;
  int clicks = 0;
  form.button.Click = [&] { ++clicks; };
  form.second.KeyDown = [](platform::KeyStroke&) {};
  Embed(form);
  Then({[&] {
          Click(form.button);
          QTest::keyClicks(&WidgetOf(form.second), QStringLiteral("abc"));
          EXPECT_NE(desktop->Box(), nullptr);
        },
        [&] { Reply(platform::Answer::kOk); }});
  platform::input::Run([&] { Ask("Só um instante."); });
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(form.second.Text(), "");
  EXPECT_TRUE(AllDone());
}

TEST_F(ModalTest, TheCloseBoxAsksTheFormAndMayBeRefused) {
  SmallForm form;
  int asked = 0;
  form.UnloadEvent = [&](bool& refused) { refused = ++asked == 1; };
  const auto close = [&] {
    QWidget* const frame = desktop->ViewOf(form)->parentWidget();
    for (QWidget* child : frame->findChildren<QWidget*>()) {
      if (child->accessibleName() == QStringLiteral("Fechar")) {
        QTest::mouseClick(child, Qt::LeftButton);
        return;
      }
    }
    ADD_FAILURE() << "no close box";
  };
  Then({close, [&] { EXPECT_TRUE(form.IsVisible()); }, close});
  form.ShowModal();
  EXPECT_EQ(asked, 2);
  EXPECT_FALSE(form.IsVisible());
}

TEST_F(ModalTest, ADialogStandsInTheMiddleAndFollowsCode) {
  SmallForm form;
  form.Show();
  Settle();
  const QWidget& view = *desktop->ViewOf(form);
  const QPoint middle = view.mapTo(host.get(), QPoint(200, 100));
  EXPECT_NEAR(middle.x(), 512, 2);
  EXPECT_NEAR(middle.y(), 384 + 22, 2);  // The title stands above the form.
  const std::int32_t left = form.Left();
  form.Left = left - 3000;
  EXPECT_EQ(view.mapTo(host.get(), QPoint(200, 100)).x(), middle.x() - 200);
  form.Left = left;
  EXPECT_EQ(view.mapTo(host.get(), QPoint(200, 100)), middle);
  form.Width = 0;
  EXPECT_FALSE(view.isVisible());
  EXPECT_TRUE(form.IsVisible());
  form.Width = 6000;
  EXPECT_TRUE(view.isVisible());
}

TEST_F(ModalTest, AFormInAContainerFollowsItsSize) {
  SmallForm form;
  int resized = 0;
  form.Resize = [&] { ++resized; };
  Embed(form);
  EXPECT_EQ(form.Width(), 1024 * 15);
  EXPECT_EQ(resized, 1);
  host->resize(800, 600);
  Settle();
  EXPECT_EQ(form.Width(), 800 * 15);
  EXPECT_EQ(form.Height(), 600 * 15);
  EXPECT_EQ(desktop->ViewOf(form)->size(), QSize(800, 600));
  EXPECT_EQ(resized, 2);
}

}  // namespace
