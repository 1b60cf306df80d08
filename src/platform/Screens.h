#pragma once

#include <vector>

#include "platform/Form.h"

/// Which forms are up, and which of them the operator can reach.
namespace platform::screens {

/// The loaded forms, the one in front first.
const std::vector<Form*>& Loaded();
/// The form in front that is visible, or null.
Form* Front();
/// The modal form that holds the operator, or null.
Form* Modal();
/// Whether the operator can reach the form: visible, and not behind a modal one.
bool IsReachable(const Form& form);

/// Forms report their coming and going here.
void ToFront(Form& form);
void Remove(Form& form);
void PushModal(Form& form);
void PopModal(Form& form);

}  // namespace platform::screens
