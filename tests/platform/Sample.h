#pragma once

#include <deque>
#include <string>
#include <utility>
#include <vector>

#include "platform/Form.h"
#include "platform/Input.h"
#include "platform/Label.h"
#include "platform/Layout.h"
#include "platform/PictureBox.h"
#include "platform/ZVCommandButton.h"
#include "platform/ZVTextBox.h"
#include "support/Table.h"

namespace support {

/// Writes down events in the order in which they come: "first.LostFocus, second.GotFocus".
class Trace {
 public:
  void operator()(std::string what) { events_.push_back(std::move(what)); }

  void Focus(platform::Control& control) {
    control.GotFocus = Noter(control, "GotFocus");
    control.LostFocus = Noter(control, "LostFocus");
    control.Validate = [note = Noter(control, "Validate")](bool&) { note(); };
  }
  void Click(platform::Control& control) { control.Click = Noter(control, "Click"); }
  void Life(platform::Form& form) {
    form.Load = Noter(form, "Load");
    form.Resize = Noter(form, "Resize");
    form.Activate = Noter(form, "Activate");
    form.UnloadEvent = [note = Noter(form, "Unload")](bool&) { note(); };
  }
  /// What came since the last call.
  std::string Take() { return Joined(std::exchange(events_, {})); }

 private:
  struct Noted {
    void operator()() const { trace->events_.push_back(*what); }
    Trace* trace;
    const std::string* what;
  };
  Noted Noter(const platform::Object& object, const char* event) {
    return {this, &names_.emplace_back(object.Name() + "." + event)};
  }

  std::deque<std::string> names_;
  std::vector<std::string> events_;
};

/// A small screen: three fields, the third on a panel, and two buttons.
class SampleForm : public platform::Form {
 public:
  explicit SampleForm(std::string_view name = "frm") : Form(name) {
    Arrange({{9000, 6000},
             {{label, {0, 0, 900, 300}, "Primeiro"},
              {first, {900, 0, 900, 300}},
              {second, {900, 400, 900, 300}},
              {panel, {0, 1000, 9000, 3000}},
              {third, {900, 0, 900, 300}},
              {ok, {0, 5000, 900, 400}, "Ok"},
              {cancel, {1000, 5000, 900, 400}, "Cancelar"}}});
  }

  platform::Label label{*this, "label"};
  platform::ZVTextBox first{*this, "first"};
  platform::ZVTextBox second{*this, "second"};
  platform::PictureBox panel{*this, "panel"};
  platform::ZVTextBox third{panel, "third"};
  platform::ZVCommandButton ok{*this, "ok"};
  platform::ZVCommandButton cancel{*this, "cancel"};

  std::string Active() const {
    return ActiveControl() == nullptr ? "none" : ActiveControl()->Name();
  }
  /// Notes the focus events of every field and button.
  void NoteFocus(Trace& trace) {
    for (platform::Control* each : TabOrder()) trace.Focus(*each);
  }
};

/// One key to the focused control of the form, by its name ("Enter", "shift+Home") or character.
inline platform::input::Outcome Press(platform::Form& form, std::string_view name) {
  const bool shift = name.starts_with("shift+");
  const bool control = name.starts_with("ctrl+");
  if (shift) name.remove_prefix(6);
  if (control) name.remove_prefix(5);
  platform::KeyStroke stroke = platform::KeyStroke::Of(platform::KeyNamed(name), shift);
  if (stroke.key == platform::Key::kNone) {
    stroke = platform::KeyStroke::Character(base::TakeCharacter(name));
  }
  stroke.control = control;
  return platform::input::Press(form, stroke);
}

}  // namespace support
