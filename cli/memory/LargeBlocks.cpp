// SPDX-License-Identifier: MIT
#include <sys/mman.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>

// Takes large blocks in pages of 2 MiB where the kernel has them. A million fasts fill 245 MB over a run, and the first
// touch of 69,000 pages of 4 KiB costs a quarter of it, or most of it where page faults are dear.
//
// Every form is replaced but those of over-aligned types: under the sanitizers whatever is left out allocates
// elsewhere, and a block must go back to where it came from. std::stable_sort asks for its memory in the form that does
// not throw.

namespace {

constexpr std::size_t largePage = std::size_t{1} << 21;

void* block(std::size_t size) {
  if (size < 2 * largePage || size > PTRDIFF_MAX) return std::malloc(size > 0 ? size : 1);
  const std::size_t wholePages = (size + largePage - 1) / largePage * largePage;
  void* const memory = std::aligned_alloc(largePage, wholePages);
  if (memory) ::madvise(memory, wholePages, MADV_HUGEPAGE);  // a hint: without it the block is as good
  return memory;
}

}  // namespace

void* operator new(std::size_t size) {
  for (;;) {
    if (void* const memory = block(size)) return memory;
    const std::new_handler handler = std::get_new_handler();
    if (!handler) throw std::bad_alloc{};
    handler();
  }
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  try {
    return ::operator new(size);
  } catch (...) {
    return nullptr;
  }
}

void* operator new[](std::size_t size) { return ::operator new(size); }
void* operator new[](std::size_t size, const std::nothrow_t& none) noexcept { return ::operator new(size, none); }

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, const std::nothrow_t&) noexcept { std::free(memory); }
