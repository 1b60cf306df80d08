#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Colors.h"
#include "platform/Container.h"
#include "platform/Event.h"
#include "platform/Keys.h"
#include "platform/Property.h"

namespace platform {

class Label;

/// The kinds of control, each of which a renderer must be able to show.
enum class Kind {
  kLabel,
  kPictureBox,
  kShape,
  kCheckBox,
  kOptionButton,
  kCommandButton,
  kTextBox,
  kNumberBox,
  kMemo,
  kMaskedBox,
  kDateBox,
  kPeriodBox,
  kFind,
  kComboBox,
  kGrid,
  kToolbar,
  kImageList,
  kTheme,
};

/// How a control is meant to strike the eye; the renderer decides what that looks like.
enum class Look {
  kNormal,
  kPrimary,  ///< The one act that a screen is for.
  kTitle,
  kHint,        ///< Explanatory text beside the fields.
  kAmount,      ///< A sum that the operator reads.
  kMainAmount,  ///< The sum that matters now, the largest thing on the screen.
  kCard,        ///< A panel that groups fields.
  kStrip,       ///< The strip at the side of the counter.
  kFooter,      ///< The foot of a dialog, with its buttons.
  kWait,        ///< The panel that asks the operator to wait.
  kBadge,       ///< A short word of state.
};

/// The edges of its container to which a control keeps its distance when the container grows. Held
/// to both opposite edges, it grows along.
enum Hold : unsigned {
  kHoldLeft = 1,
  kHoldTop = 2,
  kHoldRight = 4,
  kHoldBottom = 8,
  kHoldTopLeft = kHoldLeft | kHoldTop,
  kHoldTopRight = kHoldRight | kHoldTop,
  kHoldBottomLeft = kHoldLeft | kHoldBottom,
  kHoldBottomRight = kHoldRight | kHoldBottom,
  kHoldWidth = kHoldLeft | kHoldTop | kHoldRight,
  kHoldAll = kHoldLeft | kHoldTop | kHoldRight | kHoldBottom,
};

/// A control of a screen: the state and the events, without a picture. Positions and sizes are in
/// twips (15 to a pixel at 96 dpi), from the upper left corner of the container.
class Control : public Object {
 public:
  Control(Container& parent, std::string_view name, Kind kind);
  ~Control() override;

  Property<std::int32_t> Left{*this, "Left"};
  Property<std::int32_t> Top{*this, "Top"};
  Property<std::int32_t> Width{*this, "Width"};
  Property<std::int32_t> Height{*this, "Height"};
  Property<bool> Enabled{*this, "Enabled", true};
  Property<bool> Visible{*this, "Visible", true};
  Property<std::string> Tag{*this, "Tag"};
  Property<std::string> ToolTipText{*this, "ToolTipText"};
  Property<Color> BackColor{*this, "BackColor", kDefaultColor};
  Property<Color> ForeColor{*this, "ForeColor", kDefaultColor};

  Event<> Click;
  Event<> GotFocus;
  Event<> LostFocus;
  /// Raised before the operator leaves the control; a handler that sets the argument keeps them
  /// there.
  Event<bool&> Validate;
  /// A handler that sets the key to kNone drops it.
  Event<KeyStroke&> KeyDown;
  /// A handler may change the character, or drop it by setting it to 0.
  Event<char32_t&> KeyPress;

  Kind GetKind() const { return kind_; }
  Form& OwnerForm() const { return form_; }
  Container& Parent() const { return parent_; }
  /// Whether this control and all that it lies on are visible.
  bool IsShown() const;
  /// Whether the operator can use it: shown, and enabled with all that it lies on.
  bool IsUsable() const;
  /// Whether the kind takes the keyboard at all, and the control may have it now.
  bool TakesFocus() const;
  bool HasFocus() const;
  /// Moves the focus here with its events; nothing happens on a hidden or disabled control.
  void SetFocus();
  void Refresh();

  /// What the control says of itself: its caption or its text.
  virtual std::string Words() const { return {}; }
  /// Takes the words that the layout gives it: a caption, or the title of a theme control.
  virtual void DesignWords(std::string_view) {}
  /// What the arrival of the focus does to the control's text.
  virtual void SelectAll() {}
  /// Whether this key raises KeyDown on this kind of control.
  virtual bool RaisesKeyDown(const KeyStroke&) const { return true; }
  /// What the control itself does with a key that no handler dropped; false when it has no use for
  /// it, so that the form may.
  virtual bool TakeKey(const KeyStroke&) { return false; }

  /// The size is another one, by code, by the container's growth or by design.
  virtual void SizeChanged(bool /*byDesign*/) {}

  // Design-time traits, told once in the form's layout.
  Look look = Look::kNormal;
  /// Whether Tab stops here; a control without still takes the focus from the mouse and from code.
  bool tabStop = true;
  unsigned hold = kHoldTopLeft;
  /// The label that names this control to the operator; null where the control has words of its
  /// own.
  const Label* label = nullptr;
  /// A word of the picture that the renderer draws on it, from its own small set.
  std::string icon;

 protected:
  void Touch() const override;
  void Written(const PropertyBase& property) override;

 private:
  Container& parent_;
  Form& form_;
  Kind kind_;
};

}  // namespace platform
