// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "host/fasting/Fasting.h"

namespace mivo::host {

/// A fast that is being edited, or a new one, before it is saved.
struct FastDraft {
  FastRecord record;                 ///< as it would be kept; it has ended
  std::optional<FastRecord> before;  ///< as it is kept; nothing for a new one
  bool isSaving = false;             ///< it is on its way to the disk
  std::string failure;               ///< one sentence: why it was not saved
  bool operator==(const FastDraft&) const = default;
};

/// Of a fast that has ended.
FastDraft draftOf(const FastRecord& record);

/// Of a new one that overlaps none: it ends now, or where the running fast began, with a whole minute, and is as long
/// as its goal, but begins no earlier than the last fast ended. Where that leaves less than a minute it ends before
/// that fast instead. O(n log n).
FastDraft newDraft(std::span<const FastRecord> fasts, UUID id, std::int64_t goalSeconds, Date now);

/// The same with another time, as `keepingSeconds` takes it, goal or note; what was said about the last attempt is
/// forgotten.
FastDraft withStart(FastDraft draft, Date start);
FastDraft withEnd(FastDraft draft, Date end);
FastDraft withGoal(FastDraft draft, std::int64_t goalSeconds);
FastDraft withNote(FastDraft draft, std::string note);

/// What is wrong with it; it is not worth saving for as long as something is. A fault that the fast had before it was
/// edited is left in peace.
std::optional<RecordFault> faultOf(const FastDraft& draft, Date now);

/// The fast that it would share time with; of several the one that began last, which is the one that people think of.
const FastRecord* overlapOf(const FastDraft& draft, std::span<const FastRecord> fasts, Date now);

/// What saves it.
Outcome saving(const FastDraft& draft, std::span<const FastRecord> fasts, Date now);

}  // namespace mivo::host
