#include "desktop/Stage.h"
#include "platform/Screens.h"

namespace {

using stage::SmallForm;

class ContainerTest : public stage::Stage {};

// A host that is not of Qt names its window by a number, which may be wrong.
TEST_F(ContainerTest, AWindowThatNobodyHasIsToldAndHoldsNobody) {
  SmallForm form;
  form.SetParent(4'711);
  Then({[&] {
    ASSERT_NE(desktop->Box(), nullptr);
    EXPECT_TRUE(desktop->Box()->Text().contains(QStringLiteral("não foi encontrada")));
    Key(Qt::Key_Return);
  }});
  platform::input::Run([&] { form.Show(); });
  EXPECT_TRUE(AllDone());
  EXPECT_FALSE(form.IsVisible());
  EXPECT_EQ(platform::screens::Front(), nullptr);
  form.SetParent(handle);
  form.Show();
  Click(form.button);
  EXPECT_EQ(form.Active(), "button") << "once the right window is named";
}

}  // namespace
