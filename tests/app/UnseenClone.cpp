// SPDX-License-Identifier: MIT
// For the thread sanitizer's build alone. Qt starts programs by a clone that shares the memory of whoever starts them;
// the sanitizer's own clone, which stands before the system's, marks that memory as a forked child's and then sees
// neither lock nor thread of the test any more.
#include <sched.h>

#include <cstdarg>

extern "C" int __clone(int (*function)(void*), void* stack, int flags, void* argument, ...);

extern "C" int clone(int (*function)(void*), void* stack, int flags, void* argument, ...) noexcept {
  va_list rest;
  va_start(rest, argument);
  auto* parent = va_arg(rest, pid_t*);
  void* threadLocal = va_arg(rest, void*);
  auto* child = va_arg(rest, pid_t*);
  va_end(rest);
  return __clone(function, stack, flags, argument, parent, threadLocal, child);
}
