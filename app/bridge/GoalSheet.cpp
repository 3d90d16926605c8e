// SPDX-License-Identifier: MIT
#include "GoalSheet.h"

#include "app/bridge/Text.h"

namespace mivo::app {

GoalSheet goalSheetOf(const GoalWeightSheet& sheet) {
  return {qString(sheet.title),   qString(sheet.fieldText), qString(sheet.unit),
          qString(sheet.problem), qString(sheet.save),      qString(sheet.remove)};
}

}  // namespace mivo::app
