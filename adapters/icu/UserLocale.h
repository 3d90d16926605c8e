// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <tl/expected.hpp>

#include "mivo/platform/Formatters.h"

namespace mivo::adapters {

/// A locale that the formatters have data for. Thread: any.
class UserLocale {
 public:
  /// Reads "de", "de-DE", "zh-Hant-TW", "en-u-hc-h23", and the system's spelling, "de_DE.UTF-8"; "C" and "POSIX" are
  /// English. An error says what was expected: a language without data and a region that does not exist are refused.
  static tl::expected<UserLocale, std::string> parse(std::string_view text);

  /// What LC_ALL, LC_MESSAGES or LANG say, the first of them that is set; English where it is none.
  static UserLocale system();

  /// The same place in another language, "de" or "zh-Hant": weeks, units and clock stay those of the region, which is
  /// the likeliest of this language where the tag names none. Itself where that is no language.
  UserLocale inLanguage(std::string_view language) const;

  /// The language tag: "de-DE".
  const std::string& tag() const { return languageTag; }

  /// 1 = Sunday to 7 = Saturday: what weeks begin with there. Where the tag names no region, its likeliest one.
  int firstWeekday() const;

  /// What people weigh themselves in there: pounds, stones, or else kilograms.
  WeightUnit weightUnit() const;

  bool operator==(const UserLocale&) const = default;

 private:
  explicit UserLocale(std::string tag);
  std::string languageTag;
};

}  // namespace mivo::adapters
