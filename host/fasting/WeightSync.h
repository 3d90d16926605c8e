// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "mivo/model/BodyWeightSample.h"

namespace mivo::host {

/// The state of a file. Another one than before means that it was written since, or that its name is another file's
/// now; the same one, that there is nothing new in it.
struct FileState {
  std::int64_t inode = 0, sizeInBytes = 0;
  std::int64_t modifiedAt = 0;  ///< nanoseconds since 1970
  bool operator==(const FileState&) const = default;
};

/// The weights of a linked file, ascending by date, and the state that it was read in.
struct WeightSync {
  FileState file;
  std::vector<BodyWeightSample> weights;
  bool operator==(const WeightSync&) const = default;
};

}  // namespace mivo::host
