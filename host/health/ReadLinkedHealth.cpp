// SPDX-License-Identifier: MIT
#include "host/health/ReadLinkedHealth.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <iterator>
#include <system_error>
#include <utility>

#include "host/history/History.h"

namespace mivo::host {
namespace {

constexpr std::int64_t nanosecondsPerSecond = 1'000'000'000;

LinkedHealthFault faultOf(const std::string& path, std::string reason) {
  return {{.file = path, .reason = std::move(reason)}};
}

LinkedHealthFault unreadable(const std::string& path, int error) {
  LinkedHealthFault fault =
      faultOf(path, "expected a file that can be read: " + std::generic_category().message(error));
  fault.isGone = error == ENOENT || error == ENOTDIR;
  return fault;
}

LinkedHealthFault noHealthExport(const std::string& path) {
  return faultOf(path, "expected a health export, as XML or in its zip");
}

}  // namespace

// A pipe would be waited for.
tl::expected<FileState, LinkedHealthFault> linkedFileState(const std::string& path) {
  struct stat status{};
  if (::stat(path.c_str(), &status) != 0 || ::access(path.c_str(), R_OK) != 0)
    return tl::unexpected{unreadable(path, errno)};
  if (!S_ISREG(status.st_mode)) return tl::unexpected{faultOf(path, "expected a file")};
  return FileState{.inode = static_cast<std::int64_t>(status.st_ino),
                   .sizeInBytes = status.st_size,
                   .modifiedAt = status.st_mtim.tv_sec * nanosecondsPerSecond + status.st_mtim.tv_nsec};
}

tl::expected<std::optional<LinkedHealth>, LinkedHealthFault> readLinkedHealth(
    const std::string& path, const std::optional<FileState>& before, const DataFiles& files,
    const std::function<void(double)>& progress, const std::stop_token& stop) {
  const auto state = linkedFileState(path);
  if (!state) return tl::unexpected{state.error()};
  if (before == *state) return std::nullopt;
  auto read = files.read({path}, {}, progress, stop);
  if (!read && (read.error().isUnknown || read.error().asks != ImportFault::Asks::nothing))
    return tl::unexpected{noHealthExport(path)};
  if (!read) return tl::unexpected{LinkedHealthFault{std::move(read.error().bad)}};
  LinkedHealth found{.path = path, .sync = {.file = *state, .weights = {}}, .refused = {}};
  bool isHealth = false;
  for (ImportedFile& file : *read) {
    if (file.kind != ImportKind::healthExport) continue;
    isHealth = true;
    std::ranges::move(file.weights, std::back_inserter(found.sync.weights));
    found.refused.add(file.refused);
  }
  if (!isHealth) return tl::unexpected{noHealthExport(path)};
  sortByDate(found.sync.weights);
  return found;
}

std::string faultText(const LinkedHealthFault& fault, const TextLookup& texts) {
  if (fault.isGone) return filledIn(texts.text("The linked health file is no longer there: {1}"), {fault.bad.file});
  return filledIn(texts.text("The linked health file cannot be read: {1}"), {describe(fault.bad)});
}

std::string noticeText(const LinkedHealth& read, const TextLookup& texts) {
  if (read.refused.count() > 0)
    return filledIn(texts.text("Not all weights of the linked health file were taken: {1}"),
                    {describe(read.refused.first().front())});
  if (read.sync.weights.empty())
    return filledIn(texts.text("There are no weights in the linked health file: {1}"), {read.path});
  return {};
}

}  // namespace mivo::host
