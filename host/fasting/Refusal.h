// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <variant>

#include "host/history/RecordFault.h"
#include "mivo/platform/TextLookup.h"

namespace mivo::host {

/// A second fast cannot run.
struct FastIsRunning {
  FastRecord running;
  bool operator==(const FastIsRunning&) const = default;
};

/// There is nothing to stop.
struct NoFastIsRunning {
  bool operator==(const NoFastIsRunning&) const = default;
};

/// What was to be changed is not, or no longer, among the records.
struct IsGone {
  bool operator==(const IsGone&) const = default;
};

/// An equal fast stands there already.
struct FastIsSavedAlready {
  FastRecord saved;
  bool operator==(const FastIsSavedAlready&) const = default;
};

/// The same weight stands there already.
struct IsSavedAlready {
  BodyWeightSample saved;
  bool operator==(const IsSavedAlready&) const = default;
};

/// No change was kept that could be taken back.
struct NothingToUndo {
  bool operator==(const NothingToUndo&) const = default;
};

/// The record would be one that cannot be kept. Of a fast that was to be stopped: the fast as it runs.
struct IsNoRecord {
  RecordFault fault;
  std::optional<FastRecord> running = {};
  bool operator==(const IsNoRecord&) const = default;
};

/// Why something is not done to a history, with what there is to say about it.
using Refusal =
    std::variant<FastIsRunning, NoFastIsRunning, IsGone, FastIsSavedAlready, IsSavedAlready, NothingToUndo, IsNoRecord>;

/// One sentence in the user's language, the same wherever the user tried.
std::string refusalText(const Refusal& refusal, const TextLookup& texts);
std::string faultText(RecordFault fault, const TextLookup& texts);

}  // namespace mivo::host
