#include "desktop/Stage.h"

namespace {

using stage::SmallForm;

class DimTest : public stage::Stage {};

TEST_F(DimTest, EachDarkeningIsUndoneByOneUndoing) {
  desktop->Dim(handle, 0);
  desktop->Dim(handle, 1);
  EXPECT_EQ(desktop->DimCount(handle), 2);
  desktop->Undim(handle);
  EXPECT_EQ(desktop->DimCount(handle), 1);
  const QImage dark = host->grab().toImage();
  desktop->Undim(handle);
  EXPECT_EQ(desktop->DimCount(handle), 0);
  EXPECT_LT(qGray(dark.pixel(500, 400)), qGray(host->grab().toImage().pixel(500, 400)));
  desktop->Undim(handle);
  EXPECT_EQ(desktop->DimCount(handle), 0);
  desktop->Dim(99, 0);  // A window that there is not.
}

TEST_F(DimTest, AtRestTheNextActClearsWhatAnErrorLeft) {
  SmallForm form;
  int clicks = 0;
  form.button.Click = [&] { ++clicks; };
  Embed(form);
  desktop->Dim(handle, 1);
  desktop->Dim(handle, 0);
  Click(form.button);
  EXPECT_EQ(clicks, 1) << "the darkness swallowed the act";
  EXPECT_EQ(desktop->DimCount(handle), 0);
  desktop->Dim(handle, 0);
  Key(Qt::Key_Tab);
  EXPECT_EQ(desktop->DimCount(handle), 0);
}

TEST_F(DimTest, InMidWorkTheDarknessStays) {
  SmallForm counter("frmBalcao"), dialog;
  dialog.button.Click = [&] { dialog.Hide(); };
  counter.button.Click = [&] {
    desktop->Dim(handle, 0);
    dialog.ShowModal();
    EXPECT_EQ(desktop->DimCount(handle), 1);
    desktop->Undim(handle);
  };
  Embed(counter);
  Then({[&] { Click(counter.button); }, [&] { Type("a"); },
        [&] {
          EXPECT_EQ(desktop->DimCount(handle), 1);
          Click(dialog.button);
        }});
  Click(counter.button);
  EXPECT_EQ(desktop->DimCount(handle), 0);
  EXPECT_TRUE(AllDone());
}

/// What is told during a wait, an error say, is shown over its darkness as over any other.
TEST_F(DimTest, TheDialogInFrontStaysLight) {
  for (const std::int16_t intensity : {std::int16_t{0}, std::int16_t{1}}) {
    SmallForm dialog;
    dialog.button.Click = [&] { dialog.Hide(); };
    Then({[&] {
      const QImage picture = host->grab().toImage();
      QWidget& field = WidgetOf(dialog.second);
      const QPoint inside = field.mapTo(host.get(), QPoint(100, 15));
      EXPECT_EQ(picture.pixelColor(inside), QColor(Qt::white)) << intensity;
      EXPECT_LT(qGray(picture.pixel(10, 10)), 160);
      dialog.button.SetFocus();
      Key(Qt::Key_Return);
    }});
    desktop->Dim(handle, intensity);
    dialog.ShowModal();
    desktop->Undim(handle);
  }
}

TEST_F(DimTest, TheDialogThatWaitsIsDarkened) {
  SmallForm dialog;
  dialog.button.Click = [&] { dialog.Hide(); };
  Then({[&] {
    desktop->Dim(handle, 1);
    const QImage picture = host->grab().toImage();
    QWidget& field = WidgetOf(dialog.second);
    EXPECT_LT(qGray(picture.pixel(field.mapTo(host.get(), QPoint(100, 15)))), 160);
    desktop->Undim(handle);
    Click(dialog.button);
  }});
  dialog.ShowModal();
}

}  // namespace
