#include "desktop/Accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "desktop/MessageBoxView.h"
#include "desktop/views/View.h"
#include "platform/EditBox.h"
#include "platform/ZVTextBox.h"

namespace desktop {
namespace {

QAccessible::Role RoleOf(platform::Kind kind) {
  using platform::Kind;
  switch (kind) {
    case Kind::kLabel:
      return QAccessible::StaticText;
    case Kind::kCheckBox:
      return QAccessible::CheckBox;
    case Kind::kOptionButton:
      return QAccessible::RadioButton;
    case Kind::kCommandButton:
      return QAccessible::Button;
    case Kind::kComboBox:
      return QAccessible::ComboBox;
    case Kind::kGrid:
      return QAccessible::Table;
    case Kind::kToolbar:
      return QAccessible::ToolBar;
    case Kind::kPictureBox:
      return QAccessible::Grouping;
    case Kind::kShape:
    case Kind::kImageList:
    case Kind::kTheme:
      return QAccessible::Graphic;
    default:
      return QAccessible::EditableText;
  }
}

class AccessibleView final : public QAccessibleWidget {
 public:
  explicit AccessibleView(View& view)
      : QAccessibleWidget(&view, view.Shows() == nullptr ? QAccessible::NoRole
                                                         : RoleOf(view.Shows()->GetKind())) {}

 private:
  const View& Shown() const { return static_cast<const View&>(*object()); }

  QString text(QAccessible::Text which) const override {
    return which == QAccessible::Value ? Shown().Spoken() : QAccessibleWidget::text(which);
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    const platform::Control* const control = Shown().Shows();
    if (control == nullptr) {
      state.invalid = true;
      return state;
    }
    state.disabled = !control->IsUsable();
    state.checked = (role() == QAccessible::CheckBox && Shown().Spoken() == u"marcado") ||
                    (role() == QAccessible::RadioButton && !Shown().Spoken().isEmpty());
    if (role() == QAccessible::EditableText) {
      state.editable = true;
      state.readOnly = static_cast<const platform::EditBox*>(control)->Locked();
      state.passwordEdit = control->GetKind() == platform::Kind::kTextBox &&
                           static_cast<const platform::ZVTextBox*>(control)->password;
    }
    return state;
  }
};

class AccessibleBox final : public QAccessibleWidget {
 public:
  explicit AccessibleBox(MessageBoxView& box)
      : QAccessibleWidget(&box, QAccessible::AlertMessage) {}
};

QAccessibleInterface* Make(const QString&, QObject* object) {
  if (auto* const view = dynamic_cast<View*>(object)) return new AccessibleView(*view);
  if (auto* const box = dynamic_cast<MessageBoxView*>(object)) return new AccessibleBox(*box);
  return nullptr;
}

}  // namespace

void InstallAccessibility() {
  QAccessible::installFactory(&Make);
}

}  // namespace desktop
