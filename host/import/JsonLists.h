// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <tl/expected.hpp>

#include "host/import/ImportSettings.h"
#include "host/import/ImportedFile.h"
#include "mivo/platform/UUIDGenerator.h"

namespace mivo::host {

/// Whether the first key of a text in JSON is one of the app's own snapshot, or there is none.
bool beginsAsSnapshot(std::string_view text);

/// Reads what other apps write in JSON: lists of objects whose keys are named as the columns of a table could be, at
/// the top or under any key of the top; other lists are passed over.
///
///     {"fast_data": [{"StartDTM": "2026-03-01T20:00:00Z", "EndDTM": null, "GoalHours": 16}], "mood_data": [...]}
///     [{"weight": 81.4, "unit": "kg", "date": "06/11/19", "time": "07:42:13"}]
///
/// A refusal names the way to the field, "fast_data[12].EndDTM". Whatever is nested deeper is passed over.
tl::expected<ImportedFile, ImportFault> readJsonLists(std::string_view text, const std::string& file,
                                                      const ImportSettings& settings, const UUIDGenerator& ids);

}  // namespace mivo::host
