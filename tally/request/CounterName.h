// SPDX-License-Identifier: MIT
#pragma once
#include <optional>
#include <string_view>

namespace mivo::tally {

inline constexpr std::size_t longestNamespace = 128;
inline constexpr std::size_t longestFeatureId = 128;

/// Why `name` cannot name a counter, or nothing where it can. A counter is named "NAMESPACE/featureID", both parts of
/// ASCII letters, digits, dots, hyphens and underscores, at most 128 bytes each.
///
///     faultOfCounterName("app.example/feature12");  // none
///     faultOfCounterName("app.example/12");         // "the counter must be named NAMESPACE/featureID"
std::optional<std::string_view> faultOfCounterName(std::string_view name);

/// "12" in "app.example/feature12"; the name must be without a fault.
std::string_view featureIdOf(std::string_view name);

}  // namespace mivo::tally
