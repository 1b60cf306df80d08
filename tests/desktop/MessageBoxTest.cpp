#include "desktop/Stage.h"

namespace {

using platform::Answer;
using platform::Buttons;

class MessageBoxTest : public stage::Stage {
 protected:
  Answer Question(Answer preset, std::initializer_list<Qt::Key> keys) {
    const std::vector<Qt::Key> pressed(keys);
    Then({[pressed] {
      for (const Qt::Key key : pressed) Key(key);
    }});
    return Ask("Remover o item?", Buttons::kYesNo, preset);
  }
};

TEST_F(MessageBoxTest, TheKeyboardAnswers) {
  EXPECT_EQ(Question(Answer::kNo, {Qt::Key_Return}), Answer::kNo);
  EXPECT_EQ(Question(Answer::kYes, {Qt::Key_Return}), Answer::kYes);
  EXPECT_EQ(Question(Answer::kNo, {Qt::Key_Left, Qt::Key_Return}), Answer::kYes);
  EXPECT_EQ(Question(Answer::kNo, {Qt::Key_Tab, Qt::Key_Space}), Answer::kYes);
  EXPECT_EQ(Question(Answer::kYes, {Qt::Key_Right, Qt::Key_Enter}), Answer::kNo);
  EXPECT_EQ(Question(Answer::kNo, {Qt::Key_S}), Answer::kYes);
  EXPECT_EQ(Question(Answer::kYes, {Qt::Key_N}), Answer::kNo);
  EXPECT_EQ(Question(Answer::kYes, {Qt::Key_X, Qt::Key_Escape}), Answer::kNo);
  Then({[] { Key(Qt::Key_Escape); }});
  EXPECT_EQ(Ask("Venda cancelada."), Answer::kOk);
}

TEST_F(MessageBoxTest, TheMouseAnswersWhereItWasPressedAndReleased) {
  Then({[&] {
          desktop::MessageBoxView& box = *desktop->Box();
          const QPoint yes = box.ButtonBox(Answer::kYes).center();
          const QPoint no = box.ButtonBox(Answer::kNo).center();
          QTest::mousePress(&box, Qt::LeftButton, {}, yes);
          QTest::mouseRelease(&box, Qt::LeftButton, {}, no);
          EXPECT_FALSE(box.IsAnswered());
        },
        [&] { Reply(Answer::kYes); }});
  EXPECT_EQ(Ask("Continuar?", Buttons::kYesNo, Answer::kNo), Answer::kYes);
}

TEST_F(MessageBoxTest, LongTextsStayOnTheScreen) {
  std::string text;
  for (int i = 0; i < 12; ++i) text += "\t" + std::to_string(i) + ". Uma linha comprida que ";
  text += "\n\nFim.";
  Then({[&] {
    EXPECT_TRUE(host->rect().contains(desktop->Box()->geometry()));
    EXPECT_TRUE(host->rect().contains(desktop->Box()->ButtonBox(Answer::kOk)));
    Reply(Answer::kOk);
  }});
  Ask(text.c_str());
}

TEST_F(MessageBoxTest, OneBoxMayFollowAnother) {
  Then({[&] {
          platform::input::Run([&] { Ask("Segunda"); });
          EXPECT_EQ(desktop->Box()->Text(), QStringLiteral("Primeira"));
        },
        [&] {
          EXPECT_EQ(desktop->Box()->Text(), QStringLiteral("Segunda"));
          Reply(Answer::kOk);
        },
        [] { Key(Qt::Key_Return); }});
  Ask("Primeira");
  EXPECT_EQ(desktop->Box(), nullptr);
}

TEST_F(MessageBoxTest, WithoutAWindowOfTheHostItStandsAlone) {
  host->hide();
  QTimer::singleShot(20, [&] { Key(Qt::Key_Return); });
  EXPECT_EQ(Ask("Não foi possível abrir o banco de dados."), Answer::kOk);
}

}  // namespace
