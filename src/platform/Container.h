#pragma once

#include <cstdint>
#include <vector>

namespace platform {

class Control;
class Form;

/// What controls lie on: a form or a panel of it.
class Container {
 public:
  virtual ~Container() = default;
  virtual Form& ContainerForm() = 0;
  /// The panel itself when the container is one, null when it is the form.
  virtual Control* AsControl() { return nullptr; }
  virtual std::int32_t InnerWidth() const = 0;
  virtual std::int32_t InnerHeight() const = 0;

  const std::vector<Control*>& Children() const { return children_; }

 protected:
  /// The container grew by so many twips: children that hold on to its right or lower edge follow.
  void Grown(std::int32_t byWidth, std::int32_t byHeight);

 private:
  friend class Control;
  std::vector<Control*> children_;
};

}  // namespace platform
