// SPDX-License-Identifier: MIT
#include "web/adapters/StoredFiles.h"

#include <cstdint>
#include <system_error>

#include "web/adapters/Imports.h"

namespace mivo::web {
namespace {

void demandDone(std::int32_t status, const std::string& name) {
  constexpr std::int32_t isFull = 1;
  if (status != 0)
    throw std::system_error{
        std::make_error_code(status == isFull ? std::errc::no_space_on_device : std::errc::io_error), name};
}

}  // namespace

std::vector<std::string> storedNames() {
  std::string lines;
  importedFileNames(&lines);
  std::vector<std::string> names;
  for (std::string_view rest = lines; !rest.empty(); rest.remove_prefix(names.back().size() + 1))
    names.emplace_back(rest.substr(0, rest.find('\n')));
  return names;
}

bool isStored(const std::string& name) { return importedFileOpen(name.data(), name.size(), false) >= 0; }

std::optional<std::string> readStored(const std::string& name) {
  const std::int32_t file = importedFileOpen(name.data(), name.size(), false);
  if (file < 0) return std::nullopt;
  std::string content(static_cast<std::size_t>(importedFileSize(file)), '\0');
  const std::int32_t count = importedFileRead(file, 0, content.data(), content.size());
  if (count < 0) throw std::system_error{std::make_error_code(std::errc::io_error), name};
  content.resize(static_cast<std::size_t>(count));
  return content;
}

void replaceStored(const std::string& name, std::string_view content) {
  demandDone(importedFileReplace(name.data(), name.size(), content.data(), content.size()), name);
}

void removeStored(const std::string& name) { demandDone(importedFileRemove(name.data(), name.size()), name); }

}  // namespace mivo::web
