// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace mivo::cli {

/// A bar of block characters, to an eighth of a column. A fraction outside 0 to 1 is held there, and one that is not a
/// number is 0; whatever is above 0 shows at least an eighth. Never wider than `width` columns, and not padded.
std::string bar(double fraction, int width);

}  // namespace mivo::cli
