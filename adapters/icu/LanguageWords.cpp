// SPDX-License-Identifier: MIT
#include "adapters/icu/LanguageWords.h"

#include <unicode/dtfmtsym.h>
#include <unicode/dtptngen.h>
#include <unicode/reldatefmt.h>

#include <algorithm>
#include <memory>

namespace mivo::adapters {
namespace {

using Symbols = icu::DateFormatSymbols;

std::string smallUtf8(icu::UnicodeString text) {
  std::string result;
  text.toLower(icu::Locale::getRoot()).toUTF8String(result);
  return result;
}

std::string inSmallLetters(std::string_view text) {
  return smallUtf8(icu::UnicodeString::fromUTF8({text.data(), static_cast<std::int32_t>(text.size())}));
}

void add(DateWords::Forms& forms, const icu::UnicodeString& text) {
  std::string form = smallUtf8(text);
  if (!form.empty() && std::ranges::find(forms, form) == forms.end()) forms.push_back(std::move(form));
}

/// Every form of a list of names, the first of which stands at `from`.
template <std::size_t count, class Get>
void addForms(std::array<DateWords::Forms, count>& lists, int from, Get&& get) {
  for (const auto context : {Symbols::FORMAT, Symbols::STANDALONE})
    for (const auto width : {Symbols::WIDE, Symbols::ABBREVIATED, Symbols::SHORT}) {
      std::int32_t size = 0;
      const icu::UnicodeString* const names = get(size, context, width);
      for (std::size_t place = 0; place < count && from + static_cast<int>(place) < size; ++place)
        add(lists[place], names[from + static_cast<int>(place)]);
    }
}

void addRelative(DateWords& words, const icu::Locale& locale) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::RelativeDateTimeFormatter formatter{locale, status};
  if (U_FAILURE(status)) return;
  const auto word = [&](DateWords::Forms& forms, UDateDirection direction, UDateAbsoluteUnit unit) {
    icu::UnicodeString text;
    UErrorCode outcome = U_ZERO_ERROR;
    formatter.format(direction, unit, text, outcome);
    if (U_SUCCESS(outcome)) add(forms, text);
  };
  word(words.today, UDAT_DIRECTION_THIS, UDAT_ABSOLUTE_DAY);
  word(words.yesterday, UDAT_DIRECTION_LAST, UDAT_ABSOLUTE_DAY);
  word(words.now, UDAT_DIRECTION_PLAIN, UDAT_ABSOLUTE_NOW);
}

bool hasDayFirst(const icu::Locale& locale) {
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<icu::DateTimePatternGenerator> patterns{
      icu::DateTimePatternGenerator::createInstance(locale, status)};
  if (U_FAILURE(status)) return true;
  const icu::UnicodeString pattern = patterns->getBestPattern(u"yMd", status);
  return U_FAILURE(status) || pattern.indexOf(u'd') < pattern.indexOf(u'M');
}

}  // namespace

DateWords dateWords(const UserLocale& userLocale) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::Locale locale = icu::Locale::forLanguageTag(userLocale.tag(), status);
  DateWords words;
  words.inSmallLetters = inSmallLetters;
  const Symbols symbols{locale, "gregorian", status};
  if (U_FAILURE(status)) return words;
  // The forms of months have no shorter width than the abbreviated one that is a name.
  addForms(words.months, 0, [&](std::int32_t& size, auto context, auto width) {
    return symbols.getMonths(size, context, width == Symbols::SHORT ? Symbols::ABBREVIATED : width);
  });
  addForms(words.weekdays, 1,
           [&](std::int32_t& size, auto context, auto width) { return symbols.getWeekdays(size, context, width); });
  addForms(words.halves, 0, [&](std::int32_t& size, auto, auto) { return symbols.getAmPmStrings(size); });
  addRelative(words, locale);
  words.isDayFirst = hasDayFirst(locale);
  return words;
}

}  // namespace mivo::adapters
