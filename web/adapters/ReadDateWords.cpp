// SPDX-License-Identifier: MIT
#include "web/adapters/ReadDateWords.h"

#include <cstddef>

#include "adapters/json/NlohmannDecoder.h"
#include "web/adapters/Imports.h"

namespace mivo::web {
namespace {

using Forms = adapters::DateWords::Forms;

Forms formsOf(const JSONValue& list) {
  Forms forms;
  for (const JSONValue& form : *list.array()) forms.push_back(*form.text());
  return forms;
}

template <std::size_t count>
void fill(std::array<Forms, count>& lists, const JSONValue& all) {
  for (std::size_t place = 0; place < count; ++place) lists[place] = formsOf(all.array()->at(place));
}

}  // namespace

adapters::DateWords importedDateWords() {
  std::string json;
  ::importedDateWords(&json);
  const JSONValue given = adapters::NlohmannDecoder{}.decoded(json);
  adapters::DateWords words;
  fill(words.months, *given.member("months"));
  fill(words.weekdays, *given.member("weekdays"));
  fill(words.halves, *given.member("halves"));
  words.today = formsOf(*given.member("today"));
  words.yesterday = formsOf(*given.member("yesterday"));
  words.now = formsOf(*given.member("now"));
  words.isDayFirst = std::get<bool>(given.member("isDayFirst")->content);
  words.inSmallLetters = [](std::string_view text) {
    std::string small;
    importedSmallLetters(&small, text.data(), text.size());
    return small;
  };
  return words;
}

}  // namespace mivo::web
