// SPDX-License-Identifier: MIT
#include "host/database/FaultText.h"

#include "host/database/Database.h"
#include "host/fasting/Refusal.h"

namespace mivo::host {
namespace {

std::string databaseText(const DatabaseError& error, const TextLookup& texts) {
  const std::string file = error.file.string();
  switch (error.kind) {
    case DatabaseError::Kind::damaged:
      return filledIn(texts.text("Your history in {1} is damaged. Start Mivo again to go on from a backup."), {file});
    case DatabaseError::Kind::tooNew:
      return filledIn(texts.text("A later version of Mivo has written {1}. Update Mivo to open it."), {file});
    case DatabaseError::Kind::conflict:
      return texts.text("Nothing was saved: the record was changed by another program. Look at it and try again.");
    case DatabaseError::Kind::fastRunning:
      return refusalText(FastIsRunning{}, texts);
    case DatabaseError::Kind::diskFull:
      return texts.text("Nothing was saved: the disk is full. Make room and try again.");
    case DatabaseError::Kind::locked:
      return filledIn(texts.text("Another program keeps {1} locked. Try again in a moment."), {file});
    case DatabaseError::Kind::readOnly:
      return filledIn(texts.text("Nothing was saved: {1} may not be written."), {file});
    case DatabaseError::Kind::noFolder:
      return filledIn(texts.text("The folder {1} cannot be made."), {file});
    case DatabaseError::Kind::unavailable:
      return filledIn(texts.text("{1} cannot be used: {2}"), {file, error.reason});
  }
  return error.what();
}

}  // namespace

std::string faultText(const std::exception& error, const TextLookup& texts) {
  const auto* databases = dynamic_cast<const DatabaseError*>(&error);
  return databases ? databaseText(*databases, texts) : error.what();
}

}  // namespace mivo::host
