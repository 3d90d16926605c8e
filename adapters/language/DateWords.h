// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace mivo::adapters {

/// The words in which a language writes dates of the Gregorian calendar, in small letters, each in all forms that it
/// takes: full and short, inside a date and alone.
struct DateWords {
  using Forms = std::vector<std::string>;

  std::array<Forms, 12> months;   ///< from January
  std::array<Forms, 7> weekdays;  ///< from Sunday
  std::array<Forms, 2> halves;    ///< AM and PM
  Forms today, yesterday, now;
  bool isDayFirst = true;  ///< whether a date in digits has its day before its month
  /// A text in small letters, of any script; may be called from any thread.
  std::function<std::string(std::string_view)> inSmallLetters;
};

}  // namespace mivo::adapters
