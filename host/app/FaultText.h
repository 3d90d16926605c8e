// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "host/history/RecordFault.h"
#include "mivo/platform/TextLookup.h"

namespace mivo::host {

/// Why a record cannot be kept, in one sentence in the user's language.
std::string faultText(RecordFault fault, const TextLookup& texts);

}  // namespace mivo::host
