// SPDX-License-Identifier: MIT
#include "tally/request/Conditions.h"

#include <optional>

#include "tally/request/AsciiCase.h"
#include "tally/request/Trimmed.h"

namespace mivo::tally {
namespace {

// The text before the separator, which it takes away with it.
std::string_view takePart(std::string_view& text, char separator) {
  const auto end = text.find(separator);
  const auto part = text.substr(0, end);
  text = end == std::string_view::npos ? std::string_view{} : text.substr(end + 1);
  return trimmed(part);
}

// "0", "0.0" and the like.
bool isNoWeight(std::string_view parameter) {
  if (parameter.size() < 3 || !equalsIgnoringCase(parameter.substr(0, 2), "q=")) return false;
  return parameter.find_first_not_of("0.", 2) == std::string_view::npos;
}

}  // namespace

bool acceptsGzip(std::string_view acceptEncoding) {
  std::optional<bool> gzip;
  bool any = false;
  while (!acceptEncoding.empty()) {
    auto rest = takePart(acceptEncoding, ',');
    const auto coding = takePart(rest, ';');
    const bool isWanted = !isNoWeight(trimmed(rest));
    if (equalsIgnoringCase(coding, "gzip")) gzip = isWanted;
    if (coding == "*") any = isWanted;
  }
  return gzip.value_or(any);
}

bool namesTag(std::string_view ifNoneMatch, std::string_view tag) {
  while (!ifNoneMatch.empty()) {
    auto named = takePart(ifNoneMatch, ',');
    if (named.starts_with("W/")) named.remove_prefix(2);
    if (named == tag || named == "*") return true;
  }
  return false;
}

}  // namespace mivo::tally
