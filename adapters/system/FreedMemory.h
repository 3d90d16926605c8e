// SPDX-License-Identifier: MIT
#pragma once

namespace mivo::adapters {

/// Lets the process keep the memory that it frees for what it needs next. A page given back to the kernel and asked for
/// again costs more than an update of the figures does with it: half of the time of one on ten years. Call it first in
/// `main`; for programs that end soon, or that make the same figures again and again.
void keepFreedMemory();

}  // namespace mivo::adapters
