// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/texts/DateTexts.h"
#include "adapters/texts/QuantityTexts.h"
#include "mivo/platform/Client.h"
#include "mivo/platform/TextLookup.h"

namespace mivo::web {

// The texts of a locale as JavaScript has them, in the locale and calendar that it chose.

Client<adapters::QuantityTexts> importedQuantityTexts();
Client<adapters::DateTexts> importedDateTexts();
Client<TextLookup> importedTextLookup();

}  // namespace mivo::web
