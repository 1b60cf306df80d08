#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace platform {

class Object;
class PropertyBase;

/// Who wants to hear that a property has a new value: a renderer, a recorder.
class Observer {
 public:
  virtual void Changed(Object& object, const PropertyBase& property) = 0;

 protected:
  ~Observer() = default;
};

/// A named thing with observable properties: a form, a control, a toolbar button, a menu entry.
class Object {
 public:
  explicit Object(std::string_view name) : name_(name) {}
  virtual ~Object() = default;
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;

  const std::string& Name() const { return name_; }
  const std::vector<PropertyBase*>& Properties() const { return properties_; }
  /// The property of that name, without regard to case, or null.
  PropertyBase* FindProperty(std::string_view name) const;

  void Observe(Observer& observer) { observers_.push_back(&observer); }
  void Unobserve(Observer& observer);

 private:
  friend class PropertyBase;
  template <class T>
  friend class Property;

  /// Code reads or writes a property: what must exist before that comes into being here.
  virtual void Touch() const {}
  /// Code has written a property, perhaps with the value that it had.
  virtual void Written(const PropertyBase&) {}
  /// A property has a new value, whoever gave it: what was worked out from the old one is void.
  virtual void Renewed(const PropertyBase&) {}
  void Notify(const PropertyBase& property);

  std::string name_;
  std::vector<PropertyBase*> properties_;
  std::vector<Observer*> observers_;
};

}  // namespace platform
