// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

#include "host/history/History.h"
#include "host/text/BadRecord.h"

namespace mivo::host {

/// Whether the beginning of a file is a database's.
bool isDatabase(std::string_view beginning);

/// The records of a database of the app that somebody brings along, of which nothing is trusted: it is read in memory,
/// changed nowhere, and one with triggers or views, which no database of the app has, is refused, as is one that is
/// damaged or was written by a later version. A row that no file could bring is handed to `refuse` instead; its column
/// is "fasts[12].endedAt". `file` names the file in sentences. Thread: any.
tl::expected<History, BadRecord> readDatabaseBytes(std::string bytes, const std::string& file,
                                                   const std::function<void(BadRecord)>& refuse);

}  // namespace mivo::host
