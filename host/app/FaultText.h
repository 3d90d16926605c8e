// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <string>

#include "host/history/RecordFault.h"
#include "mivo/platform/TextLookup.h"

namespace mivo::host {

/// Why a record cannot be kept, in one sentence in the user's language.
std::string faultText(RecordFault fault, const TextLookup& texts);

/// What went wrong with the database, in one sentence in the user's language that says what can be done; any other
/// error in its own words.
std::string faultText(const std::exception& error, const TextLookup& texts);

}  // namespace mivo::host
