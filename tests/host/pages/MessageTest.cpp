// SPDX-License-Identifier: MIT
#include "host/pages/Message.h"

#include <gtest/gtest.h>

#include "tests/support/TestWorld.h"

namespace mivo::host {
namespace {

using Step = AppFeature::Step;

struct MessageRow {
  const char* name;
  std::string failure;
  std::optional<AppFeature::UndoOffer> undo;
  Message expected;
};
void PrintTo(const MessageRow& row, std::ostream* out) { *out << row.name; }
class Messages : public testing::TestWithParam<MessageRow> {};

TEST_P(Messages, sayWhatFailedOrCanBeTakenBack) {
  const tests::TestWorld world;
  const DependencyScope scope = world.enter();
  AppFeature::State state = AppFeature::State::make(TimeRange::week, WeightUnit::kilograms);
  state.failure = GetParam().failure;
  state.undo = GetParam().undo;
  EXPECT_EQ(composeMessage(state, tests::EnglishTexts{}, tests::PlainNumbers{}), GetParam().expected);
}

AppFeature::UndoOffer offer(Step step, bool isTaken = false) {
  return {.step = step, .change = {}, .isTaken = isTaken};
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Messages,
    testing::Values(MessageRow{"nothing", "", {}, {"", "Undo", false, 6}},
                    MessageRow{"offer", "", offer(Step::remove), {"Fast deleted", "Undo", false, 6}},
                    MessageRow{"offerThatIsTaken", "", offer(Step::remove, true), {"", "Undo", false, 6}},
                    MessageRow{"failure", "The disk is full.", {}, {"The disk is full.", "OK", true, 0}},
                    MessageRow{
                        "failureFirst", "The disk is full.", offer(Step::stop), {"The disk is full.", "OK", true, 0}}),
    [](const auto& row) { return std::string{row.param.name}; });

}  // namespace
}  // namespace mivo::host
