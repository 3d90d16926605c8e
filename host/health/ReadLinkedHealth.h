// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <tl/expected.hpp>

#include "host/data/DataFiles.h"
#include "host/fasting/WeightSync.h"
#include "mivo/platform/StopToken.h"
#include "mivo/platform/TextLookup.h"

namespace mivo::host {

/// What a linked file held, and what of it was refused.
struct LinkedHealth {
  std::string path;
  WeightSync sync;
  RefusedRecords refused;
  bool operator==(const LinkedHealth&) const = default;
};

/// Reads the body masses of a health export, as XML or its zip, unless its state is that of `before`: then it costs one
/// look at the file, and the answer is nothing. A file that is written while it is read counts as it was before, so
/// that it is read once more. Any other kind of file is a fault. `progress` gets from 0 to 1; after `stop` was
/// requested the answer means nothing. Throws what `DataFiles::read` does.
tl::expected<std::optional<LinkedHealth>, FileFault> readLinkedHealth(const std::string& path,
                                                                      const std::optional<FileState>& before,
                                                                      const DataFiles& files,
                                                                      const std::function<void(double)>& progress,
                                                                      const StopToken& stop);

/// One sentence in the user's language.
std::string faultText(const FileFault& fault, const TextLookup& texts);

/// What there is to say of a file that was read: that it holds no weight, or that some were refused, and why; empty
/// where there is nothing.
std::string noticeText(const LinkedHealth& read, const TextLookup& texts);

}  // namespace mivo::host
