#include "desktop/Stage.h"

namespace {

using stage::SmallForm;

class SecondActTest : public stage::Stage {
 protected:
  /// A press and release at a place of the host's window, to whatever lies there.
  void PressAt(QPoint at, QEvent::Type type = QEvent::MouseButtonPress) {
    const auto send = [&](QEvent::Type each, Qt::MouseButtons buttons) {
      QMouseEvent event(each, at, host->mapToGlobal(at), Qt::LeftButton, buttons, {});
      QCoreApplication::sendEvent(host->windowHandle(), &event);
    };
    send(type, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, Qt::NoButton);
  }
  QPoint Middle(const platform::Control& control) {
    QWidget& widget = WidgetOf(control);
    return widget.mapTo(host.get(), widget.rect().center());
  }
};

TEST_F(SecondActTest, ADoubleClickThatClosesADialogDoesNotFallThrough) {
  SmallForm counter("frmBalcao"), dialog;
  int beneath = 0;
  counter.button.Click = [&] { ++beneath; };
  dialog.button.Click = [&] { dialog.Hide(); };
  Embed(counter);
  QPoint at;
  Then({[&] {
    at = Middle(dialog.button);
    counter.button.Left = 15 * (at.x() - 20);
    counter.button.Top = 15 * (at.y() - 10);
    PressAt(at);
  }});
  platform::input::Run([&] { dialog.ShowModal(); });
  PressAt(at);  // Some systems tell the second half as a press of its own.
  EXPECT_EQ(beneath, 0);
  PressAt(at, QEvent::MouseButtonDblClick);
  EXPECT_EQ(beneath, 0);
  PressAt(at + QPoint(12, 12));  // Another place is another click.
  EXPECT_EQ(beneath, 1);
}

TEST_F(SecondActTest, ADoubleClickOnAButtonIsOneClick) {
  SmallForm form;
  int clicks = 0;
  form.button.Click = [&] { ++clicks; };
  Embed(form);
  PressAt(Middle(form.button));
  PressAt(Middle(form.button), QEvent::MouseButtonDblClick);
  EXPECT_EQ(clicks, 1);
}

TEST_F(SecondActTest, APressWhileTheHandlerWaitsIsDropped) {
  SmallForm form;
  int clicks = 0;
  form.defaultButton = &form.button;
  bool again = false;
  form.button.Click = [&] {
    ++clicks;
    while (!again && clicks == 1) desktop->ProcessEvents();
  };
  Embed(form);
  QTimer::singleShot(1, host.get(), [&] {
    Click(form.button);
    Key(Qt::Key_Return);
    again = true;
  });
  Click(form.button);
  EXPECT_EQ(clicks, 1);
}

TEST_F(SecondActTest, AHeldKeyActsOnce) {
  SmallForm form;
  int asked = 0;
  form.defaultButton = &form.button;
  form.button.Click = [&] {
    if (++asked < 5) Ask("Informe o cliente.");
  };
  Embed(form);
  Then({[&] {
    Hold(Qt::Key_Return);
    EXPECT_NE(desktop->Box(), nullptr) << "a held key answered the box";
    Key(Qt::Key_Return);
  }});
  Key(Qt::Key_Return);
  Hold(Qt::Key_Return);
  Hold(Qt::Key_Space);
  EXPECT_EQ(asked, 1);
  form.first.SetFocus();
  Hold(Qt::Key_Backspace);
  Type("a");
  QKeyEvent repeated(QEvent::KeyPress, Qt::Key_A, {}, QStringLiteral("a"), true);
  QCoreApplication::sendEvent(&Focus(), &repeated);
  EXPECT_EQ(form.first.Text(), "aa");
}

TEST_F(SecondActTest, WhatIsTypedWhileADialogClosesGoesToTheScreenBeneathAfterItsHandler) {
  SmallForm counter("frmBalcao"), dialog;
  counter.button.Click = [&] {
    dialog.ShowModal();
    counter.first.Text = "";  // As a screen clears itself after a sale.
    counter.first.SetFocus();
  };
  dialog.button.Click = [&] { dialog.Hide(); };
  Embed(counter);
  counter.first.SetFocus();
  Then({[&] {
    // A scanner types on without waiting: all in one batch of events.
    Click(dialog.button);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("789"));
  }});
  Click(counter.button);
  Settle();
  EXPECT_EQ(counter.first.Text(), "789");
}

TEST_F(SecondActTest, AHeldScreenHearsNothing) {
  SmallForm form;
  int clicks = 0;
  form.button.Click = [&] { ++clicks; };
  Embed(form);
  {
    const platform::Form::CommandsHeld held(form);
    Click(form.button);
    Type("a");
  }
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(form.first.Text(), "");
  Click(form.button);
  EXPECT_EQ(clicks, 1);
}

}  // namespace
