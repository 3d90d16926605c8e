// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "host/import/ImportSettings.h"
#include "host/import/ImportedFile.h"
#include "host/import/RecordRows.h"
#include "mivo/platform/UUIDGenerator.h"

namespace mivo::host {

/// Makes the records of a file's rows: of fasts or of weights, as its columns say. `name` and `kind` of `file` are set;
/// records, refusals and notes are added to it. A fault where the file as a whole leaves something open, and then
/// `file` is not to be used.
std::optional<ImportFault> readRows(const RecordRows& rows, const ImportSettings& settings, const UUIDGenerator& ids,
                                    ImportedFile& file);

}  // namespace mivo::host
