#include <QClipboard>
#include <QInputMethodEvent>

#include "desktop/Stage.h"
#include "platform/ZVFind.h"
#include "platform/ZVMemo.h"
#include "platform/ZVNumberBox.h"

namespace {

/// One field of each kind that edits differently.
class Fields : public platform::Form {
 public:
  Fields() : Form("frmCampos") {
    password.password = true;
    Arrange({{9000, 6000},
             {{text, {300, 300, 3000, 450}},
              {number, {300, 900, 3000, 450}},
              {password, {300, 1500, 3000, 450}},
              {find, {300, 2100, 3000, 450}},
              {memo, {300, 2700, 3000, 1500}}}});
  }

  platform::ZVTextBox text{*this, "text"};
  platform::ZVNumberBox number{*this, "number"};
  platform::ZVTextBox password{*this, "password"};
  platform::ZVFind find{*this, "find"};
  platform::ZVMemo memo{*this, "memo"};
};

class EditBoxTest : public stage::Stage {
 protected:
  EditBoxTest() { Embed(form); }
  ~EditBoxTest() override { form.Unload(); }

  void Commit(const char* text, const char* composing = "") {
    QInputMethodEvent event(QString::fromUtf8(composing), {});
    event.setCommitString(QString::fromUtf8(text));
    QCoreApplication::sendEvent(&Focus(), &event);
  }
  static void Copied(const char* text) {
    QGuiApplication::clipboard()->setText(QString::fromUtf8(text));
  }
  static std::string Clip() { return QGuiApplication::clipboard()->text().toStdString(); }

  Fields form;
};

TEST_F(EditBoxTest, ComposedAccentsArriveAsTyped) {
  Type("S");
  Commit("", "~");
  EXPECT_EQ(form.text.Text(), "S");  // Still being composed.
  Commit("ã");
  Type("o ");
  Commit(" ");
  Commit("é");
  EXPECT_EQ(form.text.Text(), "São  é");
  form.text.Locked = true;
  Commit("ç");
  EXPECT_EQ(form.text.Text(), "São  é");
}

TEST_F(EditBoxTest, AComposedCharacterGoesThroughKeyPressAndReplacesTheSelection) {
  form.text.KeyPress = [](char32_t& character) {
    if (character == U'ê') character = U'E';
  };
  form.text.Text = "abc";
  form.text.SetFocus();
  Key(Qt::Key_A, Qt::ControlModifier);
  Commit("ê");
  EXPECT_EQ(form.text.Text(), "E");
}

TEST_F(EditBoxTest, APasteIsTypedThroughTheFieldsOwnFilter) {
  form.number.KeyPress = [](char32_t& character) {
    if ((character < U'0' || character > U'9') && character != U',') character = 0;
  };
  form.number.SetFocus();
  Copied("R$ 1.234,50\n");
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(form.number.Text(), "1234,50");
}

TEST_F(EditBoxTest, APastePressesNoKeys) {
  int searches = 0;
  form.find.Click = [&] { ++searches; };
  form.find.SetFocus();
  Copied("\n ana\tmaria\r\nRua das Flores\n");
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(searches, 0);
  EXPECT_EQ(form.find.Text(), "ana maria");
  EXPECT_EQ(form.find.Status(), platform::ZVFind::kTyped);
  form.memo.SetFocus();
  Copied("um\r\ndois");
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(form.memo.Text(), "um\ndois");
}

TEST_F(EditBoxTest, CopyAndCutButNotFromAPassword) {
  Type("Ração");
  Key(Qt::Key_A, Qt::ControlModifier);
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Clip(), "Ração");
  Key(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(form.text.Text(), "");
  form.password.SetFocus();
  Type("segredo");
  Key(Qt::Key_A, Qt::ControlModifier);
  Key(Qt::Key_C, Qt::ControlModifier);
  Key(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(Clip(), "Ração");
  EXPECT_EQ(form.password.Text(), "segredo");
  EXPECT_EQ(desktop->ViewOf(form.password)->Spoken(), QString());
  form.text.Text = "fixo";
  form.text.Locked = true;
  form.text.SetFocus();
  Key(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(Clip(), "fixo");
  EXPECT_EQ(form.text.Text(), "fixo");
}

TEST_F(EditBoxTest, TheMouseSelects) {
  form.text.Text = "um dois três";
  form.number.SetFocus();
  Click(form.text, {12, 15});
  EXPECT_EQ(form.text.SelectedText(), "um dois três");  // The click that brings the focus.
  Click(form.text, {195, 15});
  EXPECT_EQ(form.text.SelStart(), 12);
  EXPECT_EQ(form.text.SelLength(), 0);
  QTest::mouseDClick(&WidgetOf(form.text), Qt::LeftButton, {}, {12, 15});
  EXPECT_EQ(form.text.SelectedText(), "um ");
  QWidget& widget = WidgetOf(form.text);
  QTest::mousePress(&widget, Qt::LeftButton, {}, {195, 15});
  QMouseEvent drag(QEvent::MouseMove, QPointF(2, 15), widget.mapToGlobal(QPointF(2, 15)),
                   Qt::NoButton, Qt::LeftButton, {});
  QCoreApplication::sendEvent(&widget, &drag);
  QTest::mouseRelease(&widget, Qt::LeftButton, {}, {2, 15});
  EXPECT_EQ(form.text.SelLength(), 12);
  EXPECT_EQ(form.text.Caret(), 0);
}

TEST_F(EditBoxTest, WordsAndLinesByTheKeyboard) {
  Type("um dois três");
  Key(Qt::Key_Left, Qt::ControlModifier);
  EXPECT_EQ(form.text.Caret(), 8);
  Key(Qt::Key_Backspace, Qt::ControlModifier);
  EXPECT_EQ(form.text.Text(), "um três");
  form.memo.SetFocus();
  Type("um");
  Key(Qt::Key_Return);
  Type("dois");
  EXPECT_EQ(form.memo.Text(), "um\ndois");
  Key(Qt::Key_Up);
  Key(Qt::Key_Home);
  Type(">");
  Key(Qt::Key_Down);
  Key(Qt::Key_End);
  Type("<");
  EXPECT_EQ(form.memo.Text(), ">um\ndois<");
}

/// An amount whose first figures are out of sight would read as another one.
TEST_F(EditBoxTest, ALongAmountIsSetSmallerAndALongNameIsCutWithItsTip) {
  const auto inkAtLeft = [&](const platform::Control& control) {
    const QImage picture = WidgetOf(control).grab().toImage();
    for (int y = 4; y < picture.height() - 4; ++y) {
      for (int x = 3; x < 7; ++x) {
        if (qGray(picture.pixel(x, y)) < 200) return true;
      }
    }
    return false;
  };
  form.memo.SetFocus();
  form.number.Text = "9.999.999.999.999.999.999.999.999,99";
  EXPECT_FALSE(inkAtLeft(form.number)) << "figures run out of the field";
  EXPECT_FALSE(desktop->ViewOf(form.number)->IsCut());
  form.text.Text = std::string(120, 'm');
  form.password.Text = std::string(120, 'm');
  host->grab();
  EXPECT_TRUE(desktop->ViewOf(form.text)->IsCut());
  EXPECT_FALSE(desktop->ViewOf(form.password)->IsCut()) << "the tip would tell the password";
}

TEST_F(EditBoxTest, TheFindFieldsButtonSearchesAndItsTextDoesNot) {
  int searches = 0;
  form.find.Click = [&] { ++searches; };
  Click(form.find, {20, 15});
  EXPECT_EQ(searches, 0);
  EXPECT_EQ(form.ActiveControl(), &form.find);
  Click(form.find, {WidgetOf(form.find).width() - 10, 15});
  Key(Qt::Key_Return);
  EXPECT_EQ(searches, 2);
}

}  // namespace
