// SPDX-License-Identifier: MIT
#include "host/backup/BackupName.h"

#include <gtest/gtest.h>

namespace mivo::host {
namespace {

TEST(BackupName, saysWhenItWasMadeToTheSecond) {
  const Date noon = dateSince1970(1772366400);
  EXPECT_EQ(backupName(noon + Duration{0.75}), "mivo-2026-03-01T120000Z.json");
  for (const Date date : {noon, dateSince1970(0), dateSince1970(-1), firstDate, lastDate})
    EXPECT_EQ(backupDate(backupName(date)), date) << backupName(date);
}

TEST(BackupName, isNoOtherFiles) {
  for (const char* name :
       {"", "mivo-.json", "mivo.json", "mivo-2026-03-01.json", "mivo-2026-03-01T120000Z.json.Ab3xyZ",
        "mivo-2026-03-01T12:00:00Z.json", "mivo-2026-02-30T120000Z.json", "mivo-2026-03-01T120000+0100.json",
        "mivo-2026-03-01T120000Z.csv", "copy of mivo-2026-03-01T120000Z.json", "mivo-2026-03-01t120000z.json"})
    EXPECT_EQ(backupDate(name), std::nullopt) << name;
}

}  // namespace
}  // namespace mivo::host
