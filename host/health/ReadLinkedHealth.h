// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <stop_token>
#include <string>
#include <tl/expected.hpp>

#include "host/data/DataFiles.h"
#include "host/fasting/WeightSync.h"
#include "host/text/BadRecord.h"
#include "mivo/platform/TextLookup.h"

namespace mivo::host {

/// What a linked file held, and what of it was refused.
struct LinkedHealth {
  std::string path;
  WeightSync sync;
  RefusedRecords refused;
  bool operator==(const LinkedHealth&) const = default;
};

/// Why nothing of a linked file was taken in.
struct LinkedHealthFault {
  BadRecord bad;
  bool isGone = false;  ///< no file has its name any more
  bool operator==(const LinkedHealthFault&) const = default;
};

/// The state of a linked file, or why it cannot be read: it is gone, is no file, or belongs to others.
tl::expected<FileState, LinkedHealthFault> linkedFileState(const std::string& path);

/// Reads the body masses of a health export, as XML or its zip, unless its state is that of `before`: then it costs one
/// look at the file, and the answer is nothing. A file that is written while it is read counts as it was before, so
/// that it is read once more. Any other kind of file is a fault. `progress` gets from 0 to 1; after `stop` was
/// requested the answer means nothing. Throws what `DataFiles::read` does.
tl::expected<std::optional<LinkedHealth>, LinkedHealthFault> readLinkedHealth(
    const std::string& path, const std::optional<FileState>& before, const DataFiles& files,
    const std::function<void(double)>& progress, const std::stop_token& stop);

/// One sentence in the user's language.
std::string faultText(const LinkedHealthFault& fault, const TextLookup& texts);

/// What there is to say of a file that was read: that it holds no weight, or that some were refused, and why; empty
/// where there is nothing.
std::string noticeText(const LinkedHealth& read, const TextLookup& texts);

}  // namespace mivo::host
