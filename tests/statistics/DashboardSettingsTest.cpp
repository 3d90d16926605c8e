// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "mivo/statistics/DashboardSettingsFeature.h"
#include "mivo/store/Print.h"
#include "tests/support/FixedClients.h"

namespace mivo {
namespace {

using State = DashboardSettingsFeature::State;

State nothing() {
  State state;
  fields(state, [](std::string_view, Observed<bool>& flag) { flag = false; });
  return state;
}

TEST(DashboardSettings, showNothingOnlyWhereEveryFlagIsOff) {
  EXPECT_FALSE(State{}.isShowingNothing());
  EXPECT_TRUE(nothing().isShowingNothing());
  const State names;
  fields(names, [](std::string_view name, bool) {
    State alone = nothing();
    fields(alone, [name](std::string_view other, Observed<bool>& flag) { flag = other == name; });
    EXPECT_FALSE(alone.isShowingNothing()) << name;
  });
}

TEST(DashboardSettings, showEverythingAtFirstButTheZonesThatFewReach) {
  const State initial;
  fields(initial, [](std::string_view name, bool flag) {
    EXPECT_EQ(flag, name != "showKetosisHours" && name != "showDeepKetosisHours") << name;
  });
}

class PersistedSettings : public testing::Test {
 protected:
  std::shared_ptr<tests::MemoryDefaults> defaults = std::make_shared<tests::MemoryDefaults>();
  DependencyScope scope{[this] {
    Dependencies clients = tests::fixedDependencies();
    clients.userDefaults = defaults;
    return std::make_shared<const Dependencies>(std::move(clients));
  }()};
};

TEST_F(PersistedSettings, replaceEveryFlag) {
  State state = nothing();
  state.updateFromDefaults();
  EXPECT_EQ(state, State{}) << "nothing was written yet";

  defaults->setValue("showRoadmap", false);
  defaults->setValue("showKetosisHours", true);
  state.updateFromDefaults();
  State expected;
  expected.showRoadmap = false;
  expected.showKetosisHours = true;
  EXPECT_EQ(state, expected);
}

TEST_F(PersistedSettings, readWhatTheyWrote) {
  State written = nothing();
  written.showDeepKetosisHours = true;
  written.showSummary = true;
  written.writeToDefaults();
  EXPECT_EQ(defaults->values.size(), 17U);

  State read;
  read.updateFromDefaults();
  EXPECT_EQ(read, written);
}

}  // namespace
}  // namespace mivo
