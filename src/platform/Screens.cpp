#include "platform/Screens.h"

#include <algorithm>

namespace platform::screens {
namespace {

std::vector<Form*>& Forms() {
  static std::vector<Form*> forms;
  return forms;
}

std::vector<Form*>& Modals() {
  static std::vector<Form*> modals;
  return modals;
}

}  // namespace

const std::vector<Form*>& Loaded() {
  return Forms();
}

Form* Front() {
  const auto found = std::ranges::find_if(Forms(), [](const Form* f) { return f->IsVisible(); });
  return found == Forms().end() ? nullptr : *found;
}

Form* Modal() {
  // A modal form that hides while it opens another one holds nobody meanwhile.
  for (auto each = Modals().rbegin(); each != Modals().rend(); ++each) {
    if ((*each)->IsVisible()) return *each;
  }
  return nullptr;
}

bool IsReachable(const Form& form) {
  const Form* const modal = Modal();
  return form.IsVisible() && (modal == nullptr || modal == &form);
}

void ToFront(Form& form) {
  std::erase(Forms(), &form);
  Forms().insert(Forms().begin(), &form);
}

void Remove(Form& form) {
  std::erase(Forms(), &form);
  std::erase(Modals(), &form);
}

void PushModal(Form& form) {
  Modals().push_back(&form);
}
void PopModal(Form& form) {
  std::erase(Modals(), &form);
}

}  // namespace platform::screens
