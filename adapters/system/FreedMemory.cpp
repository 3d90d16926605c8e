// SPDX-License-Identifier: MIT
#include "adapters/system/FreedMemory.h"

#include <malloc.h>

namespace mivo::adapters {

void keepFreedMemory() {
  ::mallopt(M_MMAP_THRESHOLD, 1 << 25);  // the largest that glibc takes: every larger block is mapped anew
  ::mallopt(M_TRIM_THRESHOLD, 1 << 29);
  ::mallopt(M_TOP_PAD, 1 << 22);
}

}  // namespace mivo::adapters
