// SPDX-License-Identifier: MIT
#include "adapters/locale/CatalogueFolder.h"

#include <system_error>

namespace mivo::adapters {
namespace {

namespace fs = std::filesystem;

/// One catalogue that every installation has; a system's own share/locale has those of other programs.
constexpr const char* oneCatalogue = "de/LC_MESSAGES/mivo.mo";

}  // namespace

fs::path catalogueFolder() {
  std::error_code failure;
  const fs::path program = fs::read_symlink("/proc/self/exe", failure);
  return failure ? fs::path{} : catalogueFolder(program.parent_path());
}

fs::path catalogueFolder(const fs::path& programFolder) {
  for (fs::path above = programFolder;; above = above.parent_path()) {
    std::error_code unreadable;
    fs::path folder = above / "share" / "locale";
    if (fs::exists(folder / oneCatalogue, unreadable)) return folder;
    if (above == above.parent_path()) return {};
  }
}

}  // namespace mivo::adapters
