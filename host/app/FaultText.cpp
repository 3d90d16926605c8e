// SPDX-License-Identifier: MIT
#include "host/app/FaultText.h"

namespace mivo::host {

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
      return texts.text("Type your weight as a number, such as 81.4.");
  }
  return {};
}

}  // namespace mivo::host
