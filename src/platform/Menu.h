#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Event.h"
#include "platform/Object.h"
#include "platform/Property.h"

namespace platform {

class Control;
class Form;

/// An entry of a menu.
class MenuItem : public Object {
 public:
  MenuItem(Form& form, std::string_view name, std::string_view caption);

  Property<std::string> Caption{*this, "Caption"};
  Property<bool> Checked{*this, "Checked"};
  Property<bool> Enabled{*this, "Enabled", true};
  Property<bool> Visible{*this, "Visible", true};

  Event<> Click;

  Form& OwnerForm() const { return form_; }

 private:
  Form& form_;
};

/// A menu that pops up: its entries in order.
class Menu final : public MenuItem {
 public:
  Menu(Form& form, std::string_view name, std::vector<MenuItem*> items = {})
      : MenuItem(form, name, ""), items_(std::move(items)) {}

  const std::vector<MenuItem*>& Items() const { return items_; }
  void Add(MenuItem& item) { items_.push_back(&item); }
  /// Shows the menu below a control, runs the handler of the entry chosen, and returns.
  void PopUp(const Control& under);

 private:
  std::vector<MenuItem*> items_;
};

}  // namespace platform
