// SPDX-License-Identifier: MIT
#include "host/fasting/Refusal.h"

#include "mivo/weights/WeightText.h"

namespace mivo::host {
namespace {

struct Sentences {
  const TextLookup& texts;

  std::string operator()(const FastIsRunning&) const { return texts.text("A fast is running already."); }
  std::string operator()(const NoFastIsRunning&) const { return texts.text("No fast is running."); }
  std::string operator()(const IsGone&) const { return texts.text("Nothing was changed: the record is gone."); }
  std::string operator()(const FastIsSavedAlready&) const { return texts.text("This fast is saved already."); }
  std::string operator()(const IsSavedAlready&) const { return texts.text("This weight is saved already."); }
  std::string operator()(const NothingToUndo&) const { return texts.text("There is nothing to undo."); }
  std::string operator()(const IsNoRecord& record) const { return faultText(record.fault, texts); }
};

}  // namespace

std::string refusalText(const Refusal& refusal, const TextLookup& texts) {
  return std::visit(Sentences{texts}, refusal);
}

std::string faultText(RecordFault fault, const TextLookup& texts) {
  switch (fault) {
    case RecordFault::startInFuture:
      return texts.text("The start is in the future. Is the clock right?");
    case RecordFault::endInFuture:
      return texts.text("The end is in the future. Is the clock right?");
    case RecordFault::dateInFuture:
      return texts.text("The date is in the future. Is the clock right?");
    case RecordFault::endBeforeStart:
      return texts.text("The end is before the start.");
    case RecordFault::startOutOfRange:
    case RecordFault::endOutOfRange:
    case RecordFault::dateOutOfRange:
      return texts.text("Choose a date of the years 1 to 9999.");
    case RecordFault::goalOutOfRange:
      return texts.text("Choose a shorter goal.");
    case RecordFault::noteTooLong:
      return texts.text("Write a shorter note.");
    case RecordFault::weightOutOfRange:
      return refusedWeightText(texts);
  }
  return {};
}

}  // namespace mivo::host
