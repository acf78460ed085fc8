#include "memory/allocator.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace brimle {

Refusal refusal;

namespace {

bool refuses() {
  if (refusal.after < 0 || refusal.after-- > 0) return false;
  refusal.met = true;
  if (refusal.lasting) refusal.after = 0;
  return true;
}

}  // namespace
}  // namespace brimle

void* operator new(std::size_t size) {
  if (brimle::refuses()) throw std::bad_alloc();
  if (void* memory = std::malloc(std::max<std::size_t>(size, 1))) return memory;
  throw std::bad_alloc();
}
// A sanitizer's own would not come to the one above.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return brimle::refuses() ? nullptr : std::malloc(std::max<std::size_t>(size, 1));
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}
