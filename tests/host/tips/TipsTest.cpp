// SPDX-License-Identifier: MIT
#include "host/tips/Tips.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <set>

#include "tests/support/FixedClients.h"

namespace mivo::host {
namespace {

constexpr bool always(const TipFacts&) { return true; }
constexpr bool withFasts(const TipFacts& facts) { return facts.finishedFasts > 0; }

constexpr std::array<TipRule, 3> rules{{{"low", "Low", "Low one.", 1, 2, always},
                                        {"high", "High", "High one.", 3, 2, withFasts},
                                        {"middle", "Middle", "Middle one.", 2, 1, always}}};

class TipsTest : public testing::Test {
 protected:
  /// Another run of the app.
  void restart() { tips = std::make_unique<Tips>(defaults, rules); }

  std::shared_ptr<tests::MemoryDefaults> defaults = std::make_shared<tests::MemoryDefaults>();
  std::unique_ptr<Tips> tips = std::make_unique<Tips>(defaults, rules);
};

TEST_F(TipsTest, offersTheHighestOneWhoseRuleHolds) {
  EXPECT_EQ(tips->highestPriorityAvailableTip(), "middle");
  tips->setFacts({.finishedFasts = 1});
  EXPECT_EQ(tips->highestPriorityAvailableTip(), "high");
  EXPECT_TRUE(tips->canDisplay("high"));
  tips->setFacts({});
  EXPECT_FALSE(tips->canDisplay("high"));
}

TEST_F(TipsTest, staysForTheRunThatItIsShownInAndEndsAfterItsRuns) {
  for (int run = 0; run < 2; ++run) {
    restart();
    tips->didShow("low");
    tips->didShow("low");
    EXPECT_TRUE(tips->canDisplay("low")) << run;
  }
  restart();
  EXPECT_FALSE(tips->canDisplay("low"));
  EXPECT_TRUE(tips->tip("low")) << "it is still known";
}

TEST_F(TipsTest, dismissingIsForGood) {
  tips->didShow("middle");
  tips->dismiss("middle");
  EXPECT_EQ(tips->tip("middle"), std::nullopt);
  EXPECT_FALSE(tips->canDisplay("middle"));
  restart();
  EXPECT_FALSE(tips->canDisplay("middle"));
  EXPECT_EQ(tips->highestPriorityAvailableTip(), "low");
  tips->dismiss("low");
  EXPECT_EQ(tips->highestPriorityAvailableTip(), std::nullopt);
}

TEST_F(TipsTest, knowsNoForeignTip) {
  tips->didShow("foreign");
  tips->dismiss("foreign");
  EXPECT_EQ(tips->tip("foreign"), std::nullopt);
  EXPECT_FALSE(tips->canDisplay("foreign"));
  EXPECT_TRUE(defaults->values.empty());
  EXPECT_EQ(tips->tip("low"), (Tip{"low", "Low", "Low one."}));
}

TEST(ShippedTips, areDistinctAndEachIsOfferedToSomebody) {
  std::set<std::string_view> ids;
  std::set<int> priorities;
  for (const TipRule& rule : shippedTips()) {
    EXPECT_TRUE(ids.insert(rule.id).second) << rule.id;
    EXPECT_TRUE(priorities.insert(rule.priority).second) << rule.id << " ties with another";
    bool isOffered = false;
    for (const std::int64_t fasts : {0, 2, 8, 40})
      for (const std::int64_t weights : {0, 4, 40}) isOffered |= rule.isEligible({fasts, weights, false, false});
    EXPECT_TRUE(isOffered) << rule.id;
  }
  EXPECT_EQ(Tips{std::make_shared<tests::MemoryDefaults>()}.highestPriorityAvailableTip(), "chooseGoal");
}

}  // namespace
}  // namespace mivo::host
