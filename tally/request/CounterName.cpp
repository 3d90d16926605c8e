// SPDX-License-Identifier: MIT
#include "tally/request/CounterName.h"

#include <algorithm>

namespace mivo::tally {
namespace {

constexpr std::string_view featureWord = "feature";

bool isNameCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '.' || c == '-' || c == '_';
}

}  // namespace

std::optional<std::string_view> faultOfCounterName(std::string_view name) {
  const auto slash = name.find('/');
  if (slash == std::string_view::npos || !name.substr(slash + 1).starts_with(featureWord))
    return "the counter must be named NAMESPACE/featureID";
  const auto nameSpace = name.substr(0, slash);
  const auto featureId = name.substr(slash + 1 + featureWord.size());
  if (nameSpace.empty()) return "the namespace must not be empty";
  if (nameSpace.size() > longestNamespace) return "the namespace must not be longer than 128 bytes";
  if (!std::ranges::all_of(nameSpace, isNameCharacter))
    return "the namespace must be made of letters, digits, dots, hyphens and underscores";
  if (featureId.empty()) return "the feature's id must not be empty";
  if (featureId.size() > longestFeatureId) return "the feature's id must not be longer than 128 bytes";
  if (!std::ranges::all_of(featureId, isNameCharacter))
    return "the feature's id must be made of letters, digits, dots, hyphens and underscores";
  return std::nullopt;
}

std::string_view featureIdOf(std::string_view name) { return name.substr(name.find('/') + 1 + featureWord.size()); }

}  // namespace mivo::tally
