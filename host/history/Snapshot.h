// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

#include "host/history/History.h"
#include "host/history/Setting.h"
#include "mivo/platform/UUIDGenerator.h"

namespace mivo::host {

/// Reads a snapshot, the app's own backup:
///
///     {"version": 1,
///      "fasts":   [{"id"?, "start", "end" (null while it runs), "goalSeconds" (default 57600), "note"?}],
///      "weights": [{"id"?, "date", "weightInKg"}],
///      "settings": {"weightUnit": "kg", ...}}
///
/// Strict, because a misread backup is worse than a refused one: every key is known and stands once in its object,
/// dates carry their offset, and one fast at most is unfinished. Either list may be left out, and so may the settings:
/// whatever their names, texts, numbers, true or false, which go into `settings` where that is asked for. Records
/// without an id get one from `ids`. The first fault is the answer instead; its column is the way to the field,
/// "fasts[12].end", so that a file of one line can be mended too. One pass, whatever the nesting. Thread: any.
tl::expected<History, BadRecord> readSnapshot(std::string_view text, const std::string& file, const UUIDGenerator& ids,
                                              std::vector<Setting>* settings = nullptr);

/// A history as a snapshot, a record a line, with settings where there are any. It reads back to the last bit.
std::string writeSnapshot(const History& history, std::span<const Setting> settings = {});

/// The fasts or the weights alone: a snapshot without the other list, since what is left out is not meant to be empty.
std::string writeFasts(const std::vector<FastRecord>& fasts);
std::string writeWeights(const std::vector<BodyWeightSample>& weights);

}  // namespace mivo::host
