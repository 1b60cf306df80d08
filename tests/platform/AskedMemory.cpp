#include "AskedMemory.h"

#include <cstdlib>
#include <new>

namespace {

std::size_t asked = 0;

}  // namespace

std::size_t support::AskedMemory() {
  return asked;
}

void* operator new(std::size_t size) {
  asked += size;
  if (void* const memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}
