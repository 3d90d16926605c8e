// SPDX-License-Identifier: MIT
#include "mivo/model/UUID.h"

#include <gtest/gtest.h>

namespace mivo {
namespace {

TEST(UUID, readsWhatItWrites) {
  const UUID id{0x6BA7B8109DAD11D1, 0x80B400C04FD430C8};
  EXPECT_EQ(text(id), "6BA7B810-9DAD-11D1-80B4-00C04FD430C8");
  EXPECT_EQ(parseUUID(text(id)), id);
  EXPECT_EQ(parseUUID("6ba7b810-9dad-11d1-80b4-00c04fd430c8"), id);
}

TEST(UUID, refusesWhatIsNotOne) {
  for (const char* text :
       {"", "6BA7B810", "6BA7B810-9DAD-11D1-80B4-00C04FD430C", "6BA7B810x9DAD-11D1-80B4-00C04FD430C8",
        "6BA7B810-9DAD-11D1-80B4-00C04FD430CG", "6BA7B810-9DAD-11D1-80B4-00C04FD430C8 "})
    EXPECT_EQ(parseUUID(text), std::nullopt) << text;
}

}  // namespace
}  // namespace mivo
