// SPDX-License-Identifier: MIT
#include "host/pages/FastSheet.h"

#include "mivo/pages/DateTimeText.h"

namespace mivo::host {
namespace {

void sayProblem(FastSheet& sheet, RecordFault fault, const TextLookup& texts) {
  switch (fault) {
    case RecordFault::startInFuture:
    case RecordFault::startOutOfRange:
      sheet.startProblem = faultText(fault, texts);
      return;
    case RecordFault::endInFuture:
    case RecordFault::endOutOfRange:
    case RecordFault::endBeforeStart:
      sheet.endProblem = faultText(fault, texts);
      return;
    case RecordFault::goalOutOfRange:
      sheet.goalProblem = faultText(fault, texts);
      return;
    case RecordFault::noteTooLong:
      sheet.noteProblem = faultText(fault, texts);
      return;
    case RecordFault::dateInFuture:
    case RecordFault::dateOutOfRange:
    case RecordFault::weightOutOfRange:
      return;  // of what this sheet does not change
  }
}

}  // namespace

FastSheet composeFastSheet(const FastDraft& draft, std::span<const FastRecord> fasts, const PageClients& clients) {
  const auto& texts = clients.texts;
  const FinishedFastingDataEntry& fast = *draft.record.fast.finished;
  FastSheet sheet;
  sheet.isNew = !draft.before;
  sheet.title = sheet.isNew ? texts.text("Add fast") : texts.text("Edit fast");
  sheet.start = fast.start;
  sheet.end = fast.end;
  sheet.startLabel = texts.text("Start");
  sheet.startText = fixedDateTimeText(fast.start, clients);
  sheet.startSpoken = sheet.startLabel + ", " + sheet.startText;
  sheet.endLabel = texts.text("End");
  sheet.endText = fixedDateTimeText(fast.end, clients);
  sheet.endSpoken = sheet.endLabel + ", " + sheet.endText;
  sheet.seconds = fast.duration();
  sheet.lengthLabel = texts.text("Length");
  sheet.length = durationText(sheet.seconds, clients);
  sheet.lengthSpoken = sheet.lengthLabel + ", " + sheet.length;
  if (const auto fault = faultOf(draft, clients.now)) sayProblem(sheet, *fault, texts);
  if (const auto* other = overlapOf(draft, fasts, clients.now)) sheet.overlap = overlapText(other->fast.start, clients);
  sheet.goalSeconds = static_cast<double>(fast.goalSeconds);
  sheet.noteLabel = texts.text("Note");
  sheet.note = draft.record.note;
  sheet.zonesLabel = texts.text("Zones");
  sheet.zones = zoneTimeTexts(sheet.seconds, clients);
  sheet.failure = draft.failure;
  sheet.saveLabel = texts.text("Save");
  sheet.removeLabel = texts.text("Delete fast");
  if (sheet.isNew) sheet.severalLabel = texts.text("Several at once");
  return sheet;
}

}  // namespace mivo::host
