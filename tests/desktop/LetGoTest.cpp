#include "desktop/FormView.h"
#include "desktop/Stage.h"
#include "platform/Toolbar.h"

namespace {

using stage::SmallForm;

/// A form whose last member, the first to be destroyed, has parts of its own.
class ToolbarLast : public platform::Form {
 public:
  ToolbarLast() : Form("frmBarra") {
    toolbar.Add("Abertura", "Abertura", "menu_caixa_Abertura");
    Arrange({{3000, 3000}, {{toolbar, {0, 0, 3000, 3000}}}});
  }
  platform::Toolbar toolbar{*this, "toolbar"};
};

class LetGoTest : public stage::Stage {};

TEST_F(LetGoTest, AFormDestroyedInItsOwnHandlerTakesItsViewsAlong) {
  auto form = std::make_unique<SmallForm>();
  form->button.Click = [&] { form->Unload(); };
  form->Show();
  Settle();
  Click(form->button);
  form.reset();
  Settle();
  auto alone = std::make_unique<SmallForm>();
  alone->Show();
  Settle();
  alone.reset();  // Shown and never unloaded.
  Settle();
}

TEST_F(LetGoTest, AnUnloadedFormMayBeWrittenAndShownAgain) {
  stage::GridForm form;
  form.Show();
  Settle();
  form.Unload();
  form.Fill(3);
  EXPECT_EQ(desktop->ViewOf(form), nullptr);
  form.Show();
  Settle();
  ASSERT_NE(desktop->ViewOf(form), nullptr);
  EXPECT_TRUE(desktop->ViewOf(form)->isVisible());
}

TEST_F(LetGoTest, ButtonsOfAToolbarAreLeftAloneOnceTheyAreGone) {
  auto form = std::make_unique<ToolbarLast>();
  form->Show();
  Settle();
  form->toolbar.Buttons("Abertura").Enabled = false;
  form.reset();
  Settle();
  ToolbarLast again;
  again.Show();
  Settle();
  again.Unload();
  again.toolbar.Buttons("Abertura").Enabled = false;  // Nobody listens any more.
}

TEST_F(LetGoTest, AnAdoptedFormLivesAsLongAsItsWindow) {
  class Watched : public stage::GridForm {
   public:
    explicit Watched(bool& flag) : gone(flag) {}
    ~Watched() override { gone = true; }
    bool& gone;
  };
  auto container = std::make_unique<QWidget>(host.get());
  container->resize(1024, 768);
  container->show();
  const platform::WindowHandle number = desktop->Register(*container);
  bool gone = false;
  auto owned = std::make_unique<Watched>(gone);
  platform::Form& form = *owned;
  desktop->Adopt(number, std::move(owned));
  form.SetParent(number);
  form.Show();
  Settle();
  EXPECT_FALSE(gone);
  container.reset();
  EXPECT_TRUE(gone);
  Settle();
}

TEST_F(LetGoTest, ChangesOfAGridAreShownOnceAndNotAfterTheEnd) {
  stage::GridForm form;
  form.SetParent(handle);
  form.Show();
  form.Fill(500);
  form.msfgGrade.TextMatrix(1, 0, "mudou");
  form.Unload();
  form.msfgGrade.TextMatrix(1, 0, "mudou outra vez");
  Settle();
}

}  // namespace
