// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/language/DateWords.h"

namespace mivo::web {

/// The words in which the browser writes dates in the user's language, as `dateWords.mjs` finds them:
///
///     {"months": [["january", "jan"], ...], "weekdays": [["sunday", "sun"], ...], "halves": [["am"], ["pm"]],
///      "today": ["today"], "yesterday": ["yesterday"], "now": ["now"], "isDayFirst": false}
adapters::DateWords importedDateWords();

}  // namespace mivo::web
