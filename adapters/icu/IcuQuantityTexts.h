// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/icu/UserLocale.h"
#include "adapters/texts/QuantityTexts.h"
#include "mivo/platform/Client.h"

namespace mivo::adapters {

Client<QuantityTexts> icuQuantityTexts(const UserLocale& locale);

}  // namespace mivo::adapters
