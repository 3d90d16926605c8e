// SPDX-License-Identifier: MIT
#include "host/place/TypedDates.h"

#include <array>
#include <string>
#include <vector>

namespace mivo::host {
namespace {

/// Without points and blanks, as names are compared: "févr.", "p. m.".
std::string plain(const std::string& form) {
  std::string result;
  for (std::size_t at = 0; at < form.size();) {
    const std::string_view rest = std::string_view{form}.substr(at);
    const std::size_t dropped = rest.starts_with('.') || rest.starts_with(' ') ? 1
                                : rest.starts_with("\u00A0")                   ? 2
                                : rest.starts_with("\u202F")                   ? 3
                                                                               : 0;
    if (dropped == 0) result += form[at++];
    at += dropped;
  }
  return result;
}

void add(std::vector<DateNames::Name>& names, const adapters::DateWords::Forms& forms, unsigned number) {
  for (const std::string& form : forms) names.push_back({plain(form), number});
}

template <std::size_t count>
void add(std::vector<DateNames::Name>& names, const std::array<adapters::DateWords::Forms, count>& lists,
         unsigned from) {
  for (unsigned place = 0; place < count; ++place) add(names, lists[place], place + from);
}

/// Those of the language come first: a word may mean something else in English.
DateNames namesIn(const adapters::DateWords& words) {
  DateNames names;
  add(names.months, words.months, 1);
  add(names.weekdays, words.weekdays, 0);
  add(names.halves, words.halves, 0);
  add(names.daysAgo, words.today, 0);
  add(names.daysAgo, words.yesterday, 1);
  names.now = words.now;
  names.inSmallLetters = words.inSmallLetters;
  const DateNames& english = englishDateNames();
  const auto append = [](auto& list, const auto& more) { list.insert(list.end(), more.begin(), more.end()); };
  append(names.months, english.months);
  append(names.weekdays, english.weekdays);
  append(names.halves, english.halves);
  append(names.daysAgo, english.daysAgo);
  append(names.now, english.now);
  append(names.links, english.links);
  append(names.untils, english.untils);
  names.links.insert(names.links.end(), {"um", "à", "a"});
  names.untils.insert(names.untils.end(), {"bis", "à", "jusqu'à", "jusqu’à", "a", "hasta"});
  return names;
}

}  // namespace

TypedDateWords typedDateWords(const adapters::DateWords& words) {
  return {.names = namesIn(words), .order = words.isDayFirst ? DateOrder::dayFirst : DateOrder::monthFirst};
}

tl::expected<Date, SpokenFault> readTypedDate(std::string_view text, const std::function<adapters::DateWords()>& words,
                                              const adapters::TimeZone& zone, Date now, std::optional<Date> after) {
  if (const auto written = parseDateText(text); written && written->offset)
    if (const auto date = instant(*written)) return *date;
  const auto [names, order] = typedDateWords(words());
  const SpokenFrame frame{.now = now, .zone = zone, .order = order, .after = after};
  return readSpokenDate(names.inSmallLetters(text), names, frame);
}

}  // namespace mivo::host
