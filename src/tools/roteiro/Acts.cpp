#include <limits>

#include "base/Text.h"
#include "platform/EditBox.h"
#include "platform/Form.h"
#include "platform/Input.h"
#include "platform/MSFlexGrid.h"
#include "platform/Menu.h"
#include "platform/Toolbar.h"
#include "platform/ZVComboBox.h"
#include "tools/roteiro/Commands.h"
#include "tools/roteiro/Conversation.h"
#include "tools/roteiro/HeadlessDesktop.h"
#include "tools/roteiro/Lookup.h"
#include "tools/roteiro/Refusal.h"

namespace roteiro::acts {
namespace {

namespace input = platform::input;

/// Moves the focus there. False when it did not arrive: the field left would not be left.
bool Arrive(platform::Control& control) {
  if (!control.HasFocus()) Require(input::Focus(control), control);
  return control.HasFocus();
}

platform::ZVComboBox& ComboIn(const Arguments& arguments) {
  platform::Control& control = ControlIn(arguments);
  if (control.GetKind() != platform::Kind::kComboBox) {
    throw CannotDo(control.Name() + " is not a combo box");
  }
  return static_cast<platform::ZVComboBox&>(control);
}

/// The item that the command names; -1 when there is none, or when it names none.
std::int32_t ItemIn(const Arguments& arguments, const platform::ZVComboBox& combo) {
  const std::int32_t count = combo.ListCount();
  if (arguments.Has("index")) {
    const std::int32_t index = arguments.Int("index");
    return index < count ? index : -1;
  }
  const std::string text = arguments.Text("text");
  for (std::int32_t i = 0; i < count; ++i) {
    const std::string& item = combo.List(i);
    if (item == text || platform::ZVComboBox::ShownForm(item) == text) return i;
  }
  return -1;
}

input::Outcome ClickCell(const Arguments& arguments) {
  platform::MSFlexGrid& grid = GridIn(arguments);
  const std::string button = arguments.Text("button", "left");
  if (button != "left" && button != "right") throw CannotDo("no mouse button \"" + button + "\"");
  return input::ClickCell(
      grid, arguments.Int("row", 0, grid.Rows() - 1), arguments.Int("col", 0, grid.Cols() - 1),
      button == "left" ? platform::MouseButton::kLeft : platform::MouseButton::kRight,
      arguments.Flag("double", false));
}

}  // namespace

std::optional<Json> Focus(Stage&, const Arguments& arguments) {
  platform::Control& control = ControlIn(arguments);
  Require(input::Focus(control), control);
  return std::nullopt;
}

std::optional<Json> Type(Stage& stage, const Arguments& arguments) {
  platform::Control& control = ControlIn(arguments);
  const std::string text = arguments.Text("text");
  const bool wasThere = control.HasFocus();
  if (!Arrive(control)) return std::nullopt;
  auto* const box = dynamic_cast<platform::EditBox*>(&control);
  if (wasThere && box != nullptr) {
    Require(input::Select(*box, 0, std::numeric_limits<std::int32_t>::max()), *box);
  }
  platform::Form& form = control.OwnerForm();
  std::string_view left = text;
  while (!left.empty()) {
    const std::string_view rest = left;
    base::TakeCharacter(left);
    if (rest.starts_with("\r\n")) base::TakeCharacter(left);  // One line break, one Enter.
    const input::Outcome outcome = input::Type(form, rest.substr(0, rest.size() - left.size()));
    if (outcome == input::Outcome::kDone) continue;
    if (outcome == input::Outcome::kUnwound) break;
    if (rest.size() == text.size()) Require(outcome, control);
    // What went before has been typed: the command was carried out, and lost its end.
    stage.conversation.Tell({{"event", "dropped"}, {"do", "type"}});
    break;
  }
  return std::nullopt;
}

std::optional<Json> Key(Stage&, const Arguments& arguments) {
  platform::Form& form = FormIn(arguments);
  const std::string name = arguments.Text("key");
  platform::KeyStroke stroke = platform::KeyStroke::Of(platform::KeyNamed(name));
  if (stroke.key == platform::Key::kNone) {
    std::string_view rest = name;
    const char32_t character = rest.empty() ? U'\0' : base::TakeCharacter(rest);
    if (character == 0 || !rest.empty()) throw CannotDo("no key \"" + name + "\"");
    stroke = platform::KeyStroke::Character(character);
  }
  Require(input::Press(form, stroke), form);
  return std::nullopt;
}

std::optional<Json> Click(Stage&, const Arguments& arguments) {
  platform::Control& control = ControlIn(arguments);
  const bool isGrid = control.GetKind() == platform::Kind::kGrid;
  if (isGrid || arguments.Has("row") || arguments.Has("col") || arguments.Has("button") ||
      arguments.Has("double")) {
    Require(ClickCell(arguments), control);
  } else if (control.GetKind() == platform::Kind::kComboBox) {
    Require(input::DropDown(ComboIn(arguments)), control);
  } else {
    Require(input::Click(control), control);
  }
  return std::nullopt;
}

std::optional<Json> Wheel(Stage&, const Arguments& arguments) {
  platform::MSFlexGrid& grid = GridIn(arguments);
  Require(input::Wheel(grid, arguments.Int("delta")), grid);
  return std::nullopt;
}

std::optional<Json> Select(Stage& stage, const Arguments& arguments) {
  platform::ZVComboBox& combo = ComboIn(arguments);
  const bool drops = arguments.Flag("drop", true);
  const bool picks = !arguments.Has("index") || arguments.Int("index", -1, 999'999) >= 0;
  if (arguments.Has("index") == arguments.Has("text")) {
    throw CannotDo("\"index\" or \"text\" says what to pick");
  }
  if (!picks && !drops) throw CannotDo("without drop-down and without a pick there is no act");
  const CannotDo noSuchItem(combo.Name() + " has no such item");
  // Opening the list may fill it, so an item may be there only afterwards.
  const bool mayCome = drops && combo.DropDown.HasHandler();
  if (picks && !mayCome && ItemIn(arguments, combo) < 0) throw CannotDo(noSuchItem);
  if (!Arrive(combo)) return std::nullopt;
  if (drops) Require(input::DropDown(combo), combo);
  if (!picks || stage.conversation.IsClosing()) return std::nullopt;
  const std::int32_t index = ItemIn(arguments, combo);
  if (index < 0) throw CannotDo(noSuchItem);
  Require(input::Pick(combo, index), combo);
  return std::nullopt;
}

std::optional<Json> Toolbar(Stage&, const Arguments& arguments) {
  platform::Form& form = FormIn(arguments);
  const std::string key = arguments.Text("button");
  for (platform::Control* control : form.Controls()) {
    if (control->GetKind() != platform::Kind::kToolbar) continue;
    auto& toolbar = static_cast<platform::Toolbar&>(*control);
    for (const auto& button : toolbar.All()) {
      if (button->Key() != key) continue;
      if (!button->Visible()) throw CannotDo("the button " + key + " is hidden");
      if (!button->Enabled()) throw CannotDo("the button " + key + " is disabled");
      Require(input::Choose(toolbar, *button), toolbar);
      return std::nullopt;
    }
  }
  throw CannotDo(form.Name() + " has no toolbar button " + key);
}

std::optional<Json> ChooseEntry(Stage& stage, const Arguments& arguments) {
  Hold& held = *stage.desktop.Held();
  const std::string name = arguments.Text("item");
  for (platform::MenuItem* item : held.menu->Items()) {
    if (item->Name() != name) continue;
    if (!item->Visible() || !item->Enabled()) {
      throw CannotDo(name + (item->Visible() ? " is disabled" : " is hidden"));
    }
    held.chosen = item;
    held.over = true;
    return std::nullopt;
  }
  throw CannotDo(held.menu->Name() + " has no entry " + name);
}

std::optional<Json> Dismiss(Stage& stage, const Arguments&) {
  stage.desktop.Held()->over = true;
  return std::nullopt;
}

std::optional<Json> Print(Stage& stage, const Arguments&) {
  Hold& held = *stage.desktop.Held();
  stage.desktop.TellPrinted(*held.preview);
  held.over = true;
  return std::nullopt;
}

std::optional<Json> Answer(Stage& stage, const Arguments& arguments) {
  Hold& held = *stage.desktop.Held();
  const std::string with = arguments.Text("with");
  const bool asks = held.box->buttons == platform::Buttons::kYesNo;
  if (asks && with == "yes") {
    held.answer = platform::Answer::kYes;
  } else if (asks && with == "no") {
    held.answer = platform::Answer::kNo;
  } else if (asks || with != "ok") {
    throw CannotDo("the message box has no button \"" + with + "\"");
  }
  held.over = true;
  return std::nullopt;
}

std::optional<Json> Close(Stage&, const Arguments& arguments) {
  platform::Form& form = FormIn(arguments);
  if (form.Parent() != 0) {
    throw CannotDo(form.Name() + " lies in the host's window and has no close box");
  }
  Require(input::Close(form), form);
  return std::nullopt;
}

}  // namespace roteiro::acts
