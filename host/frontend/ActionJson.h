// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <tl/expected.hpp>

#include "host/frontend/PersonActions.h"

namespace mivo::host {

/// An action as a page sends it, by the name of its case:
///
///     "didGoBack"    {"didOpen": "badges"}    {"didTapStart": {"start": 1782907200, "goalSeconds": 57600}}
///     {"statistics": {"binding": {"timeRange": "month"}}}
///
/// Dates are seconds since 1970, UUIDs and enumerators texts; screens are called as `rawValue` calls them. For anything
/// else, and for what no person does, one sentence: "didTapStart.start: expected a number". Thread: any.
tl::expected<PersonAction, std::string> readAction(std::string_view json);

/// The text that is read as this action, which is to be one that a person can take (asserted).
std::string writeAction(const PersonAction& action);

}  // namespace mivo::host
