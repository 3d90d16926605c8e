// SPDX-License-Identifier: MIT
#include "host/tips/TipRules.h"

#include <array>

#include "mivo/model/Translatable.h"

namespace mivo::host {
namespace {

constexpr std::array tips{
    TipRule{"chooseGoal", translatable("Choose your goal"),
            translatable("Tap the goal on the Fasting tab to change its length."), 60, 3,
            [](const TipFacts& facts) { return facts.finishedFasts < 5; }},
    TipRule{"addPastFasts", translatable("Forgot to tap start?"),
            translatable("Add past fasts on the Fasting tab, or change both ends of a fast there."), 50, 3,
            [](const TipFacts& facts) { return facts.finishedFasts >= 1 && facts.finishedFasts < 20; }},
    TipRule{"logWeight", translatable("Keep an eye on your weight"),
            translatable("Log it now and then, and the charts show it beside your fasts."), 40, 3,
            [](const TipFacts& facts) { return facts.finishedFasts >= 3 && facts.weights == 0; }},
    TipRule{"readValues", translatable("Read exact values"),
            translatable("Hold a weight chart and slide to read the value of a day."), 35, 3,
            [](const TipFacts& facts) { return facts.weights >= 3; }},
    TipRule{"setGoalWeight", translatable("Set a goal weight"),
            translatable("The goal card then says when your trend gets there."), 30, 3,
            [](const TipFacts& facts) { return facts.weights >= 7 && !facts.hasGoalWeight; }},
    TipRule{"scrollCharts", translatable("Look further back"),
            translatable("Scroll a chart sideways, and tap a bar to read its time."), 25, 3,
            [](const TipFacts& facts) { return facts.finishedFasts >= 7; }},
    TipRule{"chooseCards", translatable("Show what matters to you"),
            translatable("Choose the cards of this screen in Settings -> Statistics and Fasting Zones."), 20, 3,
            [](const TipFacts& facts) { return facts.finishedFasts >= 10; }},
    TipRule{"voteOnRoadmap", translatable("Say what comes next"),
            translatable("Vote on upcoming features. No account is needed."), 15, 2,
            [](const TipFacts& facts) { return facts.finishedFasts >= 14 && !facts.hasVoted; }},
    TipRule{"keepACopy", translatable("Keep a copy"),
            translatable(
                "Your data is on this device only. Settings -> About Mivo names the command that writes a copy of all "
                "of it."),
            10, 3, [](const TipFacts& facts) { return facts.finishedFasts >= 30; }},
};

}  // namespace

std::span<const TipRule> shippedTips() { return tips; }

}  // namespace mivo::host
