#pragma once

#include "platform/Input.h"
#include "tools/roteiro/Json.h"

namespace platform {
class Control;
class Form;
}  // namespace platform

namespace roteiro {

/// An act that the system dropped because a handler of it is still running.
class Dropped : public CannotDo {
 public:
  using CannotDo::CannotDo;
};

/// Nothing when the act was done; otherwise Dropped, or CannotDo with the reason for which an
/// operator could not do it either.
void Require(platform::input::Outcome outcome, const platform::Control& control);
void Require(platform::input::Outcome outcome, const platform::Form& form);

}  // namespace roteiro
