// SPDX-License-Identifier: MIT
#include "cli/records/ShortIDs.h"

#include <gtest/gtest.h>

namespace mivo::cli {
namespace {

constexpr UUID oneID{0x3F9A000000004000, 1}, likeIt{0x3F9AB00000004000, 2}, otherID{0x77C0000000004000, 3};

TEST(ShortIDs, areAsLongAsItTakesToTellThemApart) {
  EXPECT_EQ(ShortIDs{{oneID}}.text(oneID), "3f9a");
  EXPECT_EQ((ShortIDs{{oneID, otherID}}.text(otherID)), "77c0");
  EXPECT_EQ((ShortIDs{{oneID, likeIt, otherID}}.text(otherID)), "77c00");
  EXPECT_EQ((ShortIDs{{UUID{1, 1}, UUID{1, 2}}}.text({1, 2})).size(), 32u);
  EXPECT_EQ((ShortIDs{{oneID, oneID}}.text(oneID)).size(), 32u);
}

TEST(ShortIDs, areFoundInAnySpelling) {
  using Places = std::vector<std::size_t>;
  const ShortIDs ids{{oneID, likeIt, otherID}};
  EXPECT_EQ(ids.beginningWith("77"), Places{2});
  EXPECT_EQ(ids.beginningWith("3F9a"), (Places{0, 1}));
  EXPECT_EQ(ids.beginningWith(text(likeIt)), Places{1});
  EXPECT_EQ(ids.beginningWith("8"), Places{});
}

TEST(ShortIDs, beginWithDigits) {
  EXPECT_TRUE(canBeginID("3F9A0000-00"));
  EXPECT_FALSE(canBeginID(""));
  EXPECT_FALSE(canBeginID("last"));
}

}  // namespace
}  // namespace mivo::cli
