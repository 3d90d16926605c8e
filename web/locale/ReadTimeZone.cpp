// SPDX-License-Identifier: MIT
#include "web/locale/ReadTimeZone.h"

#include <chrono>
#include <utility>
#include <vector>

#include "web/locale/FieldReader.h"

namespace mivo::web {
namespace {

using namespace std::chrono;

bool takeTransitions(const JSONValue& list, std::vector<adapters::Transition>& into) {
  if (!list.array()) return false;
  into.reserve(list.array()->size());
  for (const JSONValue& change : *list.array()) {
    if (!change.array() || change.array()->size() != 2) return false;
    const auto at = change.array()->front().whole(), offset = change.array()->back().whole();
    if (!at || !offset) return false;
    into.push_back({sys_seconds{seconds{*at}}, seconds{*offset}});
  }
  return true;
}

}  // namespace

tl::expected<std::shared_ptr<const adapters::TimeZone>, std::string> readTimeZone(const JSONValue& zone,
                                                                                  const std::string& path) {
  if (!zone.object()) return tl::unexpected{path + ": expected an object"};
  std::string name;
  adapters::Transitions known;
  FieldReader fields{zone, path + '.'};
  fields.text("name", "expected a name", [&](std::string_view text) { return name = text, !text.empty(); });
  fields.whole("firstOffset", "expected seconds", -86'399, 86'399,
               [&](std::int64_t offset) { known.firstOffset = seconds{offset}; });
  fields.read("transitions", "expected pairs of seconds since 1970 and of an offset in seconds",
              [&](const JSONValue& list) { return takeTransitions(list, known.list); });
  fields.whole("lastYear", "expected a year from 1 to 9999", 1, 9999,
               [&](std::int64_t last) { known.lastYear = year{static_cast<int>(last)}; });
  if (std::string wrong = fields.sentence(); !wrong.empty()) return tl::unexpected{std::move(wrong)};
  return adapters::TimeZone::fromTransitions(std::move(name), std::move(known));
}

}  // namespace mivo::web
