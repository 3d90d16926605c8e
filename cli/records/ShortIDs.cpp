// SPDX-License-Identifier: MIT
#include "cli/records/ShortIDs.h"

#include <algorithm>

#include "mivo/model/LowerCase.h"

namespace mivo::cli {
namespace {

std::string digitsOf(std::string_view text) {
  std::string digits;
  for (const char c : text)
    if (c != '-') digits += lowerCase(c);
  return digits;
}

std::size_t sharedDigits(const std::string& one, const std::string& other) {
  return static_cast<std::size_t>(std::ranges::mismatch(one, other).in1 - one.begin());
}

}  // namespace

ShortIDs::ShortIDs(const std::vector<UUID>& ids) {
  all.reserve(ids.size());
  for (const UUID id : ids) all.push_back(digitsOf(mivo::text(id)));
  auto sorted = all;
  std::ranges::sort(sorted);
  for (std::size_t index = 1; index < sorted.size(); ++index)
    length = std::max(length, sharedDigits(sorted[index - 1], sorted[index]) + 1);
}

std::string ShortIDs::text(UUID id) const { return digitsOf(mivo::text(id)).substr(0, length); }

std::vector<std::size_t> ShortIDs::beginningWith(std::string_view digits) const {
  const std::string wanted = digitsOf(digits);
  std::vector<std::size_t> found;
  for (std::size_t index = 0; index < all.size(); ++index)
    if (all[index].starts_with(wanted)) found.push_back(index);
  return found;
}

bool canBeginID(std::string_view text) {
  return !text.empty() && text.find_first_not_of("0123456789abcdefABCDEF-") == std::string_view::npos;
}

}  // namespace mivo::cli
