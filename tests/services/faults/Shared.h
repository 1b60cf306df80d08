#pragma once

#include <sys/mman.h>

#include <new>

namespace services {

/// A value that the processes started from here on share.
template <class Value>
class Shared {
 public:
  Shared()
      : value_(new (mmap(nullptr, sizeof(Value), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS,
                         -1, 0)) Value) {}
  ~Shared() { munmap(value_, sizeof(Value)); }
  Shared(const Shared&) = delete;
  Shared& operator=(const Shared&) = delete;

  Value* operator->() { return value_; }
  Value& operator*() { return *value_; }

 private:
  Value* value_;
};

}  // namespace services
