#include "tools/roteiro/Refusal.h"

#include "platform/Control.h"
#include "platform/Form.h"
#include "platform/Screens.h"

namespace roteiro {
namespace {

/// Why the operator cannot reach the screen; empty when they can.
std::string OutOfReach(const platform::Form& form) {
  if (!form.IsVisible()) return form.Name() + " is hidden";
  if (!platform::screens::IsReachable(form)) return form.Name() + " is behind a modal screen";
  return {};
}

std::string WhyRefused(const platform::Control& control) {
  std::string why = OutOfReach(control.OwnerForm());
  if (!why.empty()) return why;
  if (!control.IsShown()) return control.Name() + " is hidden";
  if (!control.IsUsable()) return control.Name() + " is disabled";
  return control.Name() + " does not take this act";
}

void Require(platform::input::Outcome outcome, const std::string& name, const std::string& why) {
  if (outcome == platform::input::Outcome::kRefused) throw CannotDo(why);
  if (outcome == platform::input::Outcome::kDropped) {
    throw Dropped("dropped: " + name + " is still busy with an earlier act");
  }
}

}  // namespace

void Require(platform::input::Outcome outcome, const platform::Control& control) {
  Require(outcome, control.Name(), WhyRefused(control));
}

void Require(platform::input::Outcome outcome, const platform::Form& form) {
  const std::string why = OutOfReach(form);
  Require(outcome, form.Name(), why.empty() ? form.Name() + " does not take this act" : why);
}

}  // namespace roteiro
