// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <span>
#include <string>
#include <tl/expected.hpp>
#include <vector>

#include "host/import/ImportSettings.h"
#include "host/import/ImportedFile.h"
#include "mivo/platform/StopToken.h"
#include "mivo/platform/UUIDGenerator.h"

namespace mivo::host {

/// How far reading has come, and how it is stopped.
struct ImportWatch {
  std::function<void(double)> progress = {};  ///< called with 0 to 1 of the present file, for each piece
  StopToken stop = {};
};

/// What files hold that a person brings along, "-" for standard input; see `ImportReader`. Of a zip archive, which must
/// be a file and no pipe, each file that is known is one of the answer, "archive.zip/export.xml". The first file that
/// cannot be read is the answer instead: they come all or not at all. Nothing is written to disk, and nothing unpacked.
tl::expected<std::vector<ImportedFile>, ImportFault> readImportFiles(std::span<const std::string> paths,
                                                                     const ImportSettings& settings,
                                                                     const UUIDGenerator& ids,
                                                                     const ImportWatch& watch = {});

}  // namespace mivo::host
