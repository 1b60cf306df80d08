// Controls hold to the edges of what they lie on as it grows and shrinks.

#include <gtest/gtest.h>

#include "platform/Form.h"
#include "platform/Label.h"
#include "platform/Layout.h"
#include "platform/PictureBox.h"
#include "platform/ZVCommandButton.h"
#include "platform/ZVTextBox.h"
#include "support/FakeDesktop.h"
#include "support/Table.h"

namespace {

using platform::Look;

/// A panel that grows both ways, on it one that holds to the right, on that a field.
struct LaidForm : platform::Form {
  LaidForm() : Form("frm") {
    Arrange(
        {{8000, 6000},
         {{still, {100, 100, 500, 300}, "Nome", Look::kTitle},
          {wide, {700, 100, 7000, 300}, "", Look::kNormal, platform::kHoldWidth, "dica", "lupa"},
          {outer, {0, 1000, 8000, 4000}, "", Look::kCard, platform::kHoldAll},
          {inner,
           {5000, 0, 3000, 4000},
           "",
           Look::kCard,
           platform::kHoldTopRight | platform::kHoldBottom},
          {field,
           {100, 3500, 2800, 300},
           "",
           Look::kNormal,
           platform::kHoldLeft | platform::kHoldRight | platform::kHoldBottom},
          {button, {7000, 5400, 900, 400}, "Ok", Look::kPrimary, platform::kHoldBottomRight}}});
  }
  platform::Label still{*this, "still"};
  platform::ZVTextBox wide{*this, "wide"};
  platform::PictureBox outer{*this, "outer"};
  platform::PictureBox inner{outer, "inner"};
  platform::ZVTextBox field{inner, "field"};
  platform::ZVCommandButton button{*this, "button"};
};

std::string Box(const platform::Control& control) {
  return support::Joined({base::ToText(control.Left()), base::ToText(control.Top()),
                          base::ToText(control.Width()), base::ToText(control.Height())});
}

class Layout : public testing::Test {
 protected:
  support::FakeDesktop desktop;
  LaidForm form;
};

TEST_F(Layout, FollowsTheEdgesItHoldsTo) {
  form.ResizeTo(9000, 6500);
  EXPECT_EQ(Box(form.still), "100, 100, 500, 300");
  EXPECT_EQ(Box(form.wide), "700, 100, 8000, 300");
  EXPECT_EQ(Box(form.outer), "0, 1000, 9000, 4500");
  EXPECT_EQ(Box(form.inner), "6000, 0, 3000, 4500");
  EXPECT_EQ(Box(form.field), "100, 4000, 2800, 300") << "its panel grew in height alone";
  EXPECT_EQ(Box(form.button), "8000, 5900, 900, 400");
  form.ResizeTo(8000, 6000);
  EXPECT_EQ(Box(form.field), "100, 3500, 2800, 300");
  EXPECT_EQ(Box(form.button), "7000, 5400, 900, 400") << "there and back leaves no trace";
}

TEST_F(Layout, FollowsAPanelThatCodeResizes) {
  form.inner.Width = 3500;
  EXPECT_EQ(Box(form.field), "100, 3500, 3300, 300");
  form.inner.Height = 4200;
  form.inner.Height = 4200;
  EXPECT_EQ(Box(form.field), "100, 3700, 3300, 300");
}

}  // namespace
