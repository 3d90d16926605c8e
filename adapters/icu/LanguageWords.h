// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/icu/UserLocale.h"
#include "adapters/language/DateWords.h"

namespace mivo::adapters {

/// The words of a locale's language. Cost: a millisecond or two. Thread: any.
DateWords dateWords(const UserLocale& locale);

}  // namespace mivo::adapters
