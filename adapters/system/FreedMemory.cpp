// SPDX-License-Identifier: MIT
#include "adapters/system/FreedMemory.h"

#include <malloc.h>

namespace mivo::adapters {

void keepFreedMemory() {
  ::mallopt(M_MMAP_THRESHOLD, 1 << 22);
  ::mallopt(M_TRIM_THRESHOLD, 1 << 26);
  ::mallopt(M_TOP_PAD, 1 << 22);
}

}  // namespace mivo::adapters
