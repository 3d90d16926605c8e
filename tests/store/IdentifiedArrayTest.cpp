// SPDX-License-Identifier: MIT
#include "mivo/store/IdentifiedArray.h"

#include <gtest/gtest.h>

#include <string>

namespace mivo {
namespace {

struct Bar {
  std::uint64_t id;
  std::string label;
  bool operator==(const Bar&) const = default;
};

TEST(IdentifiedArray, findsEveryIdOfALongListAndNoOther) {
  std::vector<Bar> bars;
  for (std::uint64_t id = 0; id < 4000; ++id) bars.push_back({id << 40, std::to_string(id)});  // ids alike in low bits
  const IdentifiedArray<Bar> array{bars};
  ASSERT_EQ(array.size(), bars.size());
  for (std::size_t place = 0; place < bars.size(); ++place) ASSERT_EQ(array.indexOf(bars[place].id), place);
  EXPECT_FALSE(array.contains(1));
  EXPECT_TRUE(array.contains(bars.back().id));
  EXPECT_EQ(IdentifiedArray<Bar>{}.find(1), nullptr);
}

TEST(IdentifiedArray, keepsTheFirstOfElementsWithTheSameId) {
  const IdentifiedArray<Bar> array{{7, "a"}, {3, "b"}, {7, "c"}, {1, "d"}, {3, "e"}};
  EXPECT_EQ(array.elements(), (std::vector<Bar>{{7, "a"}, {3, "b"}, {1, "d"}}));
  EXPECT_EQ(array.find(1)->label, "d");
  EXPECT_EQ(array.indexOf(1), 2u);
}

TEST(IdentifiedArray, isEqualByElementsInOrder) {
  const IdentifiedArray<Bar> array{{7, "a"}, {3, "b"}};
  const IdentifiedArray<Bar> copy = array;
  EXPECT_TRUE(copy.sharesStorageWith(array));
  EXPECT_EQ(copy, array);
  EXPECT_EQ((IdentifiedArray<Bar>{{7, "a"}, {3, "b"}}), array);
  EXPECT_NE((IdentifiedArray<Bar>{{3, "b"}, {7, "a"}}), array);
  EXPECT_NE((IdentifiedArray<Bar>{{7, "a"}}), array);
  EXPECT_NE(IdentifiedArray<Bar>{}, array);
}

}  // namespace
}  // namespace mivo
