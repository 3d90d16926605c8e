// SPDX-License-Identifier: MIT
#include "host/health/ReadLinkedHealth.h"

#include <iterator>
#include <utility>

#include "host/history/History.h"

namespace mivo::host {
namespace {

FileFault noHealthExport(const std::string& path) {
  return {{.file = path, .reason = "expected a health export, as XML or in its zip"}};
}

}  // namespace

tl::expected<std::optional<LinkedHealth>, FileFault> readLinkedHealth(const std::string& path,
                                                                      const std::optional<FileState>& before,
                                                                      const DataFiles& files,
                                                                      const std::function<void(double)>& progress,
                                                                      const StopToken& stop) {
  const auto state = files.state(path);
  if (!state) return tl::unexpected{state.error()};
  if (before == *state) return std::nullopt;
  auto read = files.read({path}, {}, progress, stop);
  if (!read && (read.error().isUnknown || read.error().asks != ImportFault::Asks::nothing))
    return tl::unexpected{noHealthExport(path)};
  if (!read) return tl::unexpected{FileFault{std::move(read.error().bad)}};
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

std::string faultText(const FileFault& fault, const TextLookup& texts) {
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
