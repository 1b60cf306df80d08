#include "platform/Input.h"

#include <exception>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "platform/CheckBox.h"
#include "platform/Desktop.h"
#include "platform/EditBox.h"
#include "platform/Form.h"
#include "platform/MSFlexGrid.h"
#include "platform/Menu.h"
#include "platform/OptionButton.h"
#include "platform/Screens.h"
#include "platform/Toolbar.h"
#include "platform/ZVComboBox.h"
#include "platform/ZVCommandButton.h"
#include "platform/ZVFind.h"

namespace platform::input {
namespace {

int depth = 0;

Outcome Drop() {
  Desktop::Current().Beep();
  return Outcome::kDropped;
}

/// Carries out an act on a control or form, unless the operator could not or must not do it now.
/// `busy` says whether a handler that the act would run is still running.
Outcome Act(Form& form, bool possible, bool busy, const std::function<void()>& act) {
  if (!possible || !screens::IsReachable(form)) return Outcome::kRefused;
  if (busy || form.AreCommandsHeld()) return Drop();
  return Run(act);
}

/// Whether moving the focus would enter a handler again.
bool MovingIsBusy(const Form& form, const Control& to) {
  const Control* const from = form.ActiveControl();
  if (from == &to) return false;
  const bool leaving =
      from != nullptr && (from->Validate.IsRunning() || from->LostFocus.IsRunning());
  return leaving || to.GotFocus.IsRunning();
}

/// The key to the control itself; false when it may still press one of the form's buttons.
bool TakenByControl(Form& form, Control& control, KeyStroke& stroke) {
  // A handler may close the form or move the focus: the key then has no place to go to.
  const auto gone = [&] { return !form.IsVisible() || form.ActiveControl() != &control; };
  if (control.RaisesKeyDown(stroke)) {
    control.KeyDown(stroke);
    if (stroke.key == Key::kNone || gone()) return true;
  }
  if (char32_t character = PressedCharacter(stroke); character != 0) {
    control.KeyPress(character);
    if (character == 0 || gone()) return true;
    if (stroke.key == Key::kCharacter || stroke.key == Key::kSpace) {
      stroke = KeyStroke::Character(character);
    }
  }
  return control.TakeKey(stroke);
}

/// The key to the focused control, then to the form's default and cancel buttons.
Outcome Deliver(Form& form, KeyStroke stroke) {
  Control* const control = form.ActiveControl();
  if (control != nullptr && TakenByControl(form, *control, stroke)) return Outcome::kDone;
  ZVCommandButton* button = nullptr;
  if (stroke.key == Key::kEnter) button = form.defaultButton;
  if (stroke.key == Key::kEscape) button = form.cancelButton;
  if (button == nullptr || !button->IsUsable()) return Outcome::kDone;
  if (button->Click.IsRunning() || MovingIsBusy(form, *button)) return Drop();
  if (form.MoveFocus(*button)) button->Click();
  return Outcome::kDone;
}

/// Whether the key would enter a running handler of the control: typing into a field goes on while
/// the search that it started waits.
bool KeyIsBusy(const Control& control, const KeyStroke& stroke) {
  if (control.KeyDown.IsRunning() || control.KeyPress.IsRunning()) return true;
  if (stroke.key == Key::kTab) return control.Validate.IsRunning() || control.LostFocus.IsRunning();
  const bool isField = dynamic_cast<const EditBox*>(&control) != nullptr;
  return control.Click.IsRunning() && (!isField || stroke.key == Key::kEnter);
}

}  // namespace

int Depth() {
  return depth;
}

Outcome Run(const std::function<void()>& act) {
  Outcome outcome = Outcome::kDone;
  struct Scope {
    Scope() { ++depth; }
    ~Scope() { --depth; }
  };
  Desktop& desktop = Desktop::Current();
  {
    const Scope scope;
    try {
      try {
        act();
      } catch (const base::RuntimeError& error) {
        desktop.Ask({std::to_string(error.Number()) + " - " + error.Description(), "", Icon::kStop,
                     Buttons::kOk, Answer::kOk});
      } catch (const std::exception& error) {
        // No fault of ours may take the cash desk down in the middle of a day.
        desktop.Ask({std::string("A operação não foi concluída. Tente de novo e, se o erro se "
                                 "repetir, informe ao suporte: ") +
                         error.what(),
                     "", Icon::kStop, Buttons::kOk, Answer::kOk});
      }
    } catch (const Shutdown&) {
      // The loops above unwind by themselves.
      outcome = Outcome::kUnwound;
    }
  }
  desktop.HandlerEnded();
  return outcome;
}

Outcome Focus(Control& control) {
  Form& form = control.OwnerForm();
  return Act(form, control.TakesFocus(), MovingIsBusy(form, control),
             [&] { form.MoveFocus(control); });
}

Outcome FocusNext(Form& form, bool back) {
  Control* const next = form.NextStop(back);
  return next == nullptr ? Outcome::kRefused : Focus(*next);
}

Outcome Click(Control& control) {
  Form& form = control.OwnerForm();
  const bool busy = control.Click.IsRunning() || MovingIsBusy(form, control);
  return Act(form, control.IsUsable(), busy, [&] {
    if (control.TakesFocus() && !form.MoveFocus(control)) return;
    switch (control.GetKind()) {
      case Kind::kFind:
        static_cast<ZVFind&>(control).Trigger();
        break;
      case Kind::kCheckBox:
        static_cast<CheckBox&>(control).Toggle();
        break;
      case Kind::kOptionButton:
        static_cast<OptionButton&>(control).Value = true;
        break;
      default:
        control.Click();
    }
  });
}

Outcome Press(Form& form, KeyStroke stroke) {
  Control* const control = form.ActiveControl();
  const bool busy = control != nullptr && KeyIsBusy(*control, stroke);
  if (stroke.key == Key::kTab && !stroke.control && !stroke.alt) {
    if (!screens::IsReachable(form)) return Outcome::kRefused;
    return busy ? Drop() : FocusNext(form, stroke.shift);
  }
  Outcome delivered = Outcome::kDone;
  const Outcome act = Act(form, true, busy, [&] { delivered = Deliver(form, stroke); });
  return act == Outcome::kDone ? delivered : act;
}

Outcome Type(Form& form, std::string_view text) {
  while (!text.empty()) {
    const char32_t character = base::TakeCharacter(text);
    if (character == U'\r' && text.starts_with('\n')) continue;  // One line break, one Enter.
    const KeyStroke stroke = character == U'\n' || character == U'\r'
                                 ? KeyStroke::Of(Key::kEnter)
                                 : KeyStroke::Character(character);
    const Outcome outcome = Press(form, stroke);
    if (outcome != Outcome::kDone) return outcome;
  }
  return Outcome::kDone;
}

Outcome Select(EditBox& box, std::int32_t anchor, std::int32_t caret) {
  return Act(box.OwnerForm(), box.TakesFocus(), false, [&] { box.Select(anchor, caret); });
}

Outcome ClickCell(MSFlexGrid& grid, std::int32_t row, std::int32_t col, MouseButton button,
                  bool twice) {
  Form& form = grid.OwnerForm();
  if (row < 0 || row >= grid.Rows() || col < 0 || col >= grid.Cols()) return Outcome::kRefused;
  const bool busy = grid.Click.IsRunning() || grid.MouseDown.IsRunning() ||
                    grid.DblClick.IsRunning() || MovingIsBusy(form, grid);
  return Act(form, grid.IsUsable(), busy, [&] {
    if (!form.MoveFocus(grid)) return;
    grid.MouseAt(row, col);
    grid.MouseDown(button);
    if (button != MouseButton::kLeft) return;
    // Each step may have taken rows away or closed the screen.
    const auto still = [&] {
      return form.IsVisible() && grid.IsUsable() && row < grid.Rows() && col < grid.Cols();
    };
    if (still()) grid.SelectCell(row, col);
    if (still()) grid.Click();
    if (!twice) return;
    if (still()) {
      grid.DblClick();
    } else {
      Drop();
    }
  });
}

Outcome Wheel(MSFlexGrid& grid, std::int32_t delta) {
  Form& form = grid.OwnerForm();
  return Act(form, grid.IsUsable(), form.MouseWheel.IsRunning(), [&] {
    bool scrolled = false;
    form.MouseWheel(delta, scrolled);
    if (scrolled || grid.Rows() <= grid.FixedRows()) return;
    // A grid without the focus still follows the wheel, three rows a notch.
    const std::int32_t first = grid.FixedRows();
    const std::int32_t last = std::max(grid.Rows() - grid.RowsInView(), first);
    grid.TopRow(std::clamp(grid.TopRow() - delta / 40, first, last));
  });
}

Outcome DropDown(ZVComboBox& combo) {
  Form& form = combo.OwnerForm();
  return Act(form, combo.IsUsable(), combo.DropDown.IsRunning() || MovingIsBusy(form, combo), [&] {
    if (form.MoveFocus(combo)) combo.DropDown();
  });
}

Outcome Pick(ZVComboBox& combo, std::int32_t index) {
  if (index < 0 || index >= combo.ListCount.Peek()) return Outcome::kRefused;
  Form& form = combo.OwnerForm();
  return Act(form, combo.IsUsable(), combo.Click.IsRunning() || MovingIsBusy(form, combo), [&] {
    if (form.MoveFocus(combo)) combo.Pick(index);
  });
}

Outcome Choose(Toolbar& toolbar, ToolbarButton& button) {
  const bool possible = toolbar.IsUsable() && button.Enabled() && button.Visible();
  return Act(toolbar.OwnerForm(), possible, toolbar.ButtonClick.IsRunning(),
             [&] { toolbar.ButtonClick(button); });
}

Outcome Choose(MenuItem& item) {
  return Act(item.OwnerForm(), item.Enabled() && item.Visible(), item.Click.IsRunning(),
             [&] { item.Click(); });
}

Outcome Close(Form& form) {
  return Act(form, true, form.UnloadEvent.IsRunning(), [&] { form.Unload(); });
}

void SendKeys(std::string_view keys) {
  Form* const form = screens::Front();
  if (form != nullptr && form->ActiveControl() != nullptr) {
    KeyStroke stroke;
    std::string name;
    bool inName = false;
    for (const char c : keys) {
      if (inName) {
        if (c == '}') break;
        name += name.empty() || c < 'A' || c > 'Z' ? c : static_cast<char>(c + 32);
      } else if (c == '{') {
        inName = true;
      } else if (c == '+') {
        stroke.shift = true;
      }
    }
    stroke.key = KeyNamed(name);
    form->ActiveControl()->TakeKey(stroke);
  }
  Desktop::Current().KeysSent(keys);
}

}  // namespace platform::input
