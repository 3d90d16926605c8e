// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "host/dates/SpokenDate.h"
#include "host/import/ImportedFile.h"
#include "mivo/platform/UUIDGenerator.h"

namespace mivo::host {

/// What fasts that somebody types are understood by.
struct SaidFastsFrame {
  const DateNames& names;
  SpokenFrame dates;
  std::int64_t goalSeconds = 0;  ///< of each
};

/// Reads past fasts, one a line, as people note them:
///
///     yesterday 20:00 - 12:00      25.11.2026 20:00 – 26.11.2026 12:30      2. sat 8 pm to sun 12:00
///     * sat 20:00 until sun 12:00  11/25/2026 8 pm, 11/26/2026 12 pm       yesterday 20:00, 16h 30m
///
/// A start and an end, as `readSpokenDate` reads them, with a dash, a word, a comma, a semicolon or a tab between them;
/// behind one of the last three a length may stand for the end. An end is the first such time after the start. List
/// signs before a line, empty lines and those of dashes say nothing. A line that is no fast is refused, and so is one
/// of which something lies after `now` or that ends before it starts. `name` names the text in sentences. Thread: any.
ImportedFile readSaidFasts(std::string name, std::string_view text, const SaidFastsFrame& frame,
                           const UUIDGenerator& ids);

}  // namespace mivo::host
