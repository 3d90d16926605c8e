// SPDX-License-Identifier: MIT
#include "host/history/FieldRules.h"

#include <utility>

#include "host/text/Utf8.h"

namespace mivo::host {

bool isNote(std::string_view text) { return text.size() <= longestNoteInBytes && isUtf8(text); }

std::string expectedEnd(std::int64_t lineOfRunningFast) {
  return "expected an end, since line " + std::to_string(lineOfRunningFast) + " has a fast that is still running";
}

void noteEndBeforeStart(std::optional<KeptOddity>& oddity, BadRecord bad) {
  if (oddity) {
    ++oddity->count;
    return;
  }
  bad.reason = expectedEndAfterStart;
  oddity = KeptOddity{.first = std::move(bad)};
}

}  // namespace mivo::host
