// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <string>

#include "mivo/platform/TextLookup.h"

namespace mivo::host {

/// What went wrong with the database, in one sentence in the user's language that says what can be done; any other
/// error in its own words.
std::string faultText(const std::exception& error, const TextLookup& texts);

}  // namespace mivo::host
