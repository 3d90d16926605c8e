// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "adapters/icu/UserLocale.h"
#include "adapters/texts/DateTexts.h"
#include "mivo/platform/Client.h"

namespace mivo::adapters {

/// Of a calendar by its identifier. Cheap: what is costly to open is opened on its first use and kept.
Client<DateTexts> icuDateTexts(const UserLocale& locale, std::string_view calendar);

}  // namespace mivo::adapters
