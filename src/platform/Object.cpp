#include "platform/Object.h"

#include <algorithm>

#include "base/Text.h"
#include "platform/Property.h"

namespace platform {

PropertyBase* Object::FindProperty(std::string_view name) const {
  const std::string wanted = base::Lower(name);
  const auto found = std::ranges::find_if(
      properties_, [&](const PropertyBase* each) { return base::Lower(each->Name()) == wanted; });
  return found == properties_.end() ? nullptr : *found;
}

void Object::Unobserve(Observer& observer) {
  std::erase(observers_, &observer);
}

void Object::Notify(const PropertyBase& property) {
  Renewed(property);
  // By index: an observer may begin to observe while it is told.
  for (std::size_t i = 0; i < observers_.size(); ++i) observers_[i]->Changed(*this, property);
}

}  // namespace platform
