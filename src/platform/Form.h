#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Container.h"
#include "platform/Control.h"
#include "platform/Event.h"
#include "platform/Property.h"

namespace platform {

class MenuItem;
class ZVCommandButton;
struct Layout;

/// A window of the host's, as the number by which host and module name it. 0 names none.
using WindowHandle = std::int32_t;

/// The mouse pointers that screens ask for.
inline constexpr std::int16_t kDefaultPointer = 0;
inline constexpr std::int16_t kHourglassPointer = 11;
inline constexpr std::int16_t kArrowHourglassPointer = 13;

/// A screen: its controls in tab order, which of them has the focus, and its coming and going. Each
/// screen derives from it, holds its controls as members and ends its constructor with Arrange.
class Form : public Object, public Container {
 public:
  explicit Form(std::string_view name);
  ~Form() override;

  Property<std::string> Caption{*this, "Caption"};
  Property<std::string> Tag{*this, "Tag"};
  Property<std::int32_t> Left{*this, "Left"};
  Property<std::int32_t> Top{*this, "Top"};
  /// The size inside the frame, in twips.
  Property<std::int32_t> Width{*this, "Width"};
  Property<std::int32_t> Height{*this, "Height"};
  Property<std::int16_t> MousePointer{*this, "MousePointer", kDefaultPointer};
  Property<std::int16_t> CornerRadius{*this, "CornerRadius"};

  /// A control of the form is touched for the first time, or for the first time after an Unload.
  Event<> Load;
  /// The form was shown.
  Event<> Activate;
  /// The form was shown for the first time or has another size.
  Event<> Resize;
  /// The form is about to go; a handler that sets the argument keeps it.
  Event<bool&> UnloadEvent;
  /// The wheel turned over the form, in the mouse's own units: 120 a notch, above 0 away from the
  /// operator. True says that a handler scrolled.
  Event<std::int32_t, bool&> MouseWheel;

  /// Shows the form and returns at once.
  void Show();
  /// Shows the form and returns when, the handler that hid it having finished, it is still hidden
  /// or unloaded. On a form that is already shown modally it only makes it visible again.
  void ShowModal();
  void Hide();
  /// Raises Unload, and unless that refuses, hides the form and lets go of it. A touch of a control
  /// afterwards loads it anew.
  void Unload();
  void Refresh();
  bool IsVisible() const { return visible_; }
  bool IsLoaded() const { return state_ == State::kLoaded; }
  bool IsModal() const { return modal_; }
  /// Loads the form if nothing has touched it yet, or not since it was unloaded.
  void EnsureLoaded();

  /// The window that the form lies in, 0 when it is one of its own.
  WindowHandle Parent() const { return parent_; }
  /// Makes the form a child of a window of the host; before the first show.
  void SetParent(WindowHandle container);

  /// The title that the operator reads: that of the theme control, or the caption.
  std::string Title() const;
  /// Every control, in the order of declaration.
  const std::vector<Control*>& Controls() const { return controls_; }
  const std::vector<MenuItem*>& Menus() const { return menus_; }
  Control* FindControl(std::string_view name) const;
  Control* ActiveControl() const { return active_; }
  /// The controls that can take the focus now, in tab order.
  std::vector<Control*> TabOrder() const;
  /// Where Tab, or `back` shift and Tab, goes from the focused control; null when nothing can take
  /// the focus.
  Control* NextStop(bool back) const;

  /// The buttons that Enter and Esc press where no control has a use for the key; null for none.
  ZVCommandButton* defaultButton = nullptr;
  ZVCommandButton* cancelButton = nullptr;

  /// Moves the focus as an act of code or of the operator: Validate on the control left, which may
  /// refuse, LostFocus there, GotFocus here. False when the focus did not move.
  bool MoveFocus(Control& to);
  /// Moves the focus on when the focused control can no longer have it, without Validate.
  void RepairFocus();

  /// While one of these lives, the operator's acts on the form are dropped: its commands and its
  /// close box are out of action.
  class CommandsHeld {
   public:
    explicit CommandsHeld(Form& form) : form_(form) {
      ++form_.held_;
      ++all_;
    }
    ~CommandsHeld() {
      --form_.held_;
      --all_;
    }
    CommandsHeld(const CommandsHeld&) = delete;
    CommandsHeld& operator=(const CommandsHeld&) = delete;

    /// Whether any lives, of whatever form: something is being confirmed, and a host that can helps
    /// it to come to its end.
    static bool Any() { return all_ > 0; }

   private:
    static inline int all_ = 0;
    Form& form_;
  };
  bool AreCommandsHeld() const { return held_ > 0; }

  Form& ContainerForm() override { return *this; }
  std::int32_t InnerWidth() const override { return Width(); }
  std::int32_t InnerHeight() const override { return Height(); }

  /// The renderer gives the form another size, in twips.
  void ResizeTo(std::int32_t width, std::int32_t height);

 protected:
  /// Ends the constructor of a screen: positions, captions and tab order of its controls, and its
  /// own size. From here on code that touches a control loads the form.
  void Arrange(const Layout& layout);

 private:
  friend class Control;
  friend class MenuItem;

  enum class State { kDesign, kReady, kLoaded };

  void Written(const PropertyBase& property) override;
  void ShowNow();
  void Arrive(Control* at, bool validate);
  /// The form or one of its controls begins to be destroyed: the renderer lets go of it.
  void LeaveDesktop();

  State state_ = State::kDesign;
  bool visible_ = false;
  bool modal_ = false;
  bool resized_ = false;
  bool unloading_ = false;
  int held_ = 0;
  WindowHandle parent_ = 0;
  std::int32_t laidWidth_ = 0;
  std::int32_t laidHeight_ = 0;
  Control* active_ = nullptr;
  bool arrived_ = false;  ///< The active control has had its GotFocus.
  bool onDesktop_ = false;
  std::vector<Control*> controls_;
  std::vector<Control*> tabOrder_;
  std::vector<MenuItem*> menus_;
};

}  // namespace platform
