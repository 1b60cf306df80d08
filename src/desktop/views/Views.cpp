#include "desktop/views/Views.h"

#include "desktop/views/CheckBox.h"
#include "desktop/views/EditBox.h"
#include "desktop/views/Label.h"
#include "desktop/views/MSFlexGrid.h"
#include "desktop/views/OptionButton.h"
#include "desktop/views/PictureBox.h"
#include "desktop/views/Shape.h"
#include "desktop/views/Toolbar.h"
#include "desktop/views/ZVComboBox.h"
#include "desktop/views/ZVCommandButton.h"
#include "desktop/views/ZVFind.h"
#include "desktop/views/ZVTheme.h"

namespace desktop {
namespace {

template <class ViewClass, class ControlClass>
View* Make(platform::Control& control, QWidget& parent) {
  return new ViewClass(static_cast<ControlClass&>(control), parent);
}

}  // namespace

View* MakeView(platform::Control& control, QWidget& parent) {
  using platform::Kind;
  switch (control.GetKind()) {
    case Kind::kLabel:
      return Make<LabelView, platform::Label>(control, parent);
    case Kind::kPictureBox:
      return Make<PictureBoxView, platform::PictureBox>(control, parent);
    case Kind::kShape:
      return Make<ShapeView, platform::Shape>(control, parent);
    case Kind::kCheckBox:
      return Make<CheckBoxView, platform::CheckBox>(control, parent);
    case Kind::kOptionButton:
      return Make<OptionButtonView, platform::OptionButton>(control, parent);
    case Kind::kCommandButton:
      return Make<ZVCommandButtonView, platform::ZVCommandButton>(control, parent);
    case Kind::kTextBox:
    case Kind::kNumberBox:
    case Kind::kMemo:
    case Kind::kMaskedBox:
    case Kind::kDateBox:
    case Kind::kPeriodBox:
      return Make<EditBoxView, platform::EditBox>(control, parent);
    case Kind::kFind:
      return Make<ZVFindView, platform::ZVFind>(control, parent);
    case Kind::kComboBox:
      return Make<ZVComboBoxView, platform::ZVComboBox>(control, parent);
    case Kind::kGrid:
      return Make<MSFlexGridView, platform::MSFlexGrid>(control, parent);
    case Kind::kToolbar:
      return Make<ToolbarView, platform::Toolbar>(control, parent);
    case Kind::kTheme:
      return Make<ZVThemeView, platform::ZVTheme>(control, parent);
    case Kind::kImageList:
      return nullptr;
  }
  return nullptr;
}

}  // namespace desktop
