#pragma once

#include <concepts>
#include <string>
#include <string_view>
#include <utility>

#include "base/Value.h"
#include "platform/Object.h"

namespace platform {

/// A property as tools see it: a name, and a value read and written without knowing its type.
class PropertyBase {
 public:
  /// `name` must outlive the property: it is a literal.
  PropertyBase(Object& owner, std::string_view name) : owner_(owner), name_(name) {
    owner.properties_.push_back(this);
  }
  PropertyBase(const PropertyBase&) = delete;
  PropertyBase& operator=(const PropertyBase&) = delete;

  std::string_view Name() const { return name_; }
  virtual base::Value Get() const = 0;
  /// Writes as code does; a value of another type is converted or refused with error 13, or 6 when
  /// it is out of range.
  virtual void Set(const base::Value& value) = 0;

 protected:
  ~PropertyBase() = default;
  void Notify() { owner_.Notify(*this); }

  Object& owner_;

 private:
  std::string_view name_;
};

/// One observable value of a control, read and written like a plain variable:
/// `zvnumTotal.Text = "0,00";`.
template <class T>
class Property final : public PropertyBase {
 public:
  Property(Object& owner, std::string_view name, T initial = T())
      : PropertyBase(owner, name), value_(std::move(initial)) {}

  /// A write by code: observers hear of a new value, and the owner does what the write brings
  /// about.
  Property& operator=(T value) {
    owner_.Touch();
    Assign(std::move(value));
    owner_.Written(*this);
    return *this;
  }
  Property& operator=(const Property& other) { return *this = other.value_; }

  operator const T&() const { return (*this)(); }
  const T& operator()() const {
    owner_.Touch();
    return value_;
  }
  const T* operator->() const { return &(*this)(); }
  /// The value, without the touch that a read by code is: for the platform's own questions, which
  /// must not load a form that is gone.
  const T& Peek() const { return value_; }

  /// A new value that is not a write by code: what the operator did, or what follows from another
  /// property. Only observers hear of it.
  void Assign(T value) {
    if (value_ == value) return;
    value_ = std::move(value);
    Notify();
  }

  /// The same for a change within a long value, which is not copied for it.
  template <class Change>
  void Amend(Change change) {
    change(value_);
    Notify();
  }

  base::Value Get() const override {
    if constexpr (std::same_as<T, bool> || std::same_as<T, std::string>) {
      return value_;
    } else {
      return static_cast<std::int32_t>(value_);
    }
  }
  void Set(const base::Value& value) override {
    if constexpr (std::same_as<T, bool>) {
      *this = base::ToBool(value);
    } else if constexpr (std::same_as<T, std::string>) {
      *this = base::ToText(value);
    } else if constexpr (std::same_as<T, std::int16_t>) {
      *this = base::ToInt16(base::ToDouble(value));
    } else {
      *this = static_cast<T>(base::ToInt32(value));
    }
  }

 private:
  T value_;
};

}  // namespace platform
