// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/import/ImportedFile.h"
#include "host/import/PlanImport.h"
#include "mivo/platform/Formatters.h"
#include "mivo/platform/TextLookup.h"

namespace mivo::host {

/// "fasts.csv: 12 fasts and 0 weights added, 3 there already, 2 refused"; "... to add, ..." where nothing is done yet.
std::string importSummary(const ImportedFile& file, const ImportCounts& counts, bool isDone, const TextLookup& texts,
                          const NumberFormatter& numbers);

/// What else there is to say of a file, a sentence each.
std::vector<std::string> importNotes(const ImportedFile& file, const TextLookup& texts, const NumberFormatter& numbers);

}  // namespace mivo::host
