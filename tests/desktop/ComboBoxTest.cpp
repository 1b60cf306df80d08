#include "desktop/Stage.h"
#include "desktop/views/ComboList.h"
#include "desktop/views/ZVComboBox.h"
#include "platform/ZVComboBox.h"

namespace {

class Choice : public platform::Form {
 public:
  Choice() : Form("frmEscolha") {
    Arrange({{9000, 6000},
             {{label, {300, 150, 3000, 240}, "Caixa*"},
              {combo, {300, 450, 3000, 450}},
              {other, {300, 1050, 3000, 450}}}});
  }
  platform::Label label{*this, "label"};
  platform::ZVComboBox combo{*this, "combo"};
  platform::ZVTextBox other{*this, "other"};
};

class ComboBoxTest : public stage::Stage {
 protected:
  ComboBoxTest() {
    form.combo.DropDown = [this] { events += "DropDown "; };
    form.combo.Click = [this] { events += "Click" + std::to_string(form.combo.ListIndex()) + " "; };
    form.combo.LostFocus = [this] { events += "LostFocus "; };
    Embed(form);
    for (const char* item : {"Recepção", "Banho e tosa", "Loja"}) form.combo.AddItem(item);
  }
  ~ComboBoxTest() override { form.Unload(); }

  desktop::ComboList* List() {
    return static_cast<desktop::ZVComboBoxView*>(desktop->ViewOf(form.combo))->List();
  }
  std::string Events() { return std::exchange(events, {}); }

  Choice form;
  std::string events;
};

TEST_F(ComboBoxTest, ThePickComesAfterTheDropDown) {
  form.combo.DropDown = [this] {
    events += "DropDown ";
    form.combo.Clear();
    form.combo.AddItem("Novo primeiro");
    form.combo.AddItem("Novo segundo");
  };
  Press(form.combo);
  ASSERT_NE(List(), nullptr);
  EXPECT_EQ(form.combo.ListCount(), 2);
  EXPECT_EQ(Events(), "DropDown ");
  QTest::mouseClick(List(), Qt::LeftButton, {}, List()->ItemBox(1).center());
  EXPECT_EQ(Events(), "Click1 ");
  EXPECT_EQ(List(), nullptr);
  EXPECT_EQ(form.combo.Text(), "Novo segundo");
}

TEST_F(ComboBoxTest, TheKeyboardMarksThenPicks) {
  Key(Qt::Key_F4);
  ASSERT_NE(List(), nullptr);
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);
  EXPECT_EQ(form.combo.ListIndex(), -1);
  Key(Qt::Key_Return);
  EXPECT_EQ(Events(), "DropDown Click1 ");
  Key(Qt::Key_Down, Qt::AltModifier);
  ASSERT_NE(List(), nullptr);
  EXPECT_EQ(List()->Marked(), 1);
  Key(Qt::Key_Escape);
  EXPECT_EQ(List(), nullptr);
  EXPECT_EQ(Events(), "DropDown ");
  EXPECT_EQ(form.combo.ListIndex(), 1);
}

TEST_F(ComboBoxTest, TypingIsTheModulesOpenOrClosed) {
  Type("l");
  EXPECT_EQ(Events(), "Click2 ");
  Key(Qt::Key_F4);
  Type("b");
  EXPECT_EQ(Events(), "DropDown Click1 ");
  ASSERT_NE(List(), nullptr);
  EXPECT_EQ(List()->Marked(), 1);
  Key(Qt::Key_Tab);
  EXPECT_EQ(List(), nullptr);
  EXPECT_EQ(form.ActiveControl(), &form.other);
}

TEST_F(ComboBoxTest, APickMayCloseTheScreen) {
  form.combo.Click = [this] { form.Unload(); };
  Press(form.combo);
  QTest::mouseClick(List(), Qt::LeftButton, {}, List()->ItemBox(0).center());
  Settle();
  EXPECT_FALSE(form.IsVisible());
}

TEST_F(ComboBoxTest, AListThatIsOpenGoesWithItsScreen) {
  Press(form.combo);
  form.Unload();
  Settle();
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(ComboBoxTest, TheNameIsTheLabelsWithoutItsMark) {
  EXPECT_EQ(desktop->ViewOf(form.combo)->accessibleName(), QStringLiteral("Caixa"));
  form.label.Caption = "Registradora*";
  EXPECT_EQ(desktop->ViewOf(form.combo)->accessibleName(), QStringLiteral("Registradora"));
}

}  // namespace
