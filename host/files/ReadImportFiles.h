// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <tl/expected.hpp>
#include <vector>

#include "host/import/ImportSettings.h"
#include "host/import/ImportedFile.h"
#include "mivo/platform/UUIDGenerator.h"

namespace mivo::host {

/// What files hold that a person brings along, "-" for standard input; see `ImportReader`. The first one that cannot be
/// read is the answer instead: they come all or not at all. Nothing is written to disk.
tl::expected<std::vector<ImportedFile>, ImportFault> readImportFiles(std::span<const std::string> paths,
                                                                     const ImportSettings& settings,
                                                                     const UUIDGenerator& ids);

}  // namespace mivo::host
