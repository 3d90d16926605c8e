// SPDX-License-Identifier: MIT
#include "host/pages/GoalChoice.h"

#include <algorithm>
#include <array>
#include <utility>

#include "mivo/fasting/GoalTime.h"

namespace mivo::host {
namespace {

constexpr std::array<std::int64_t, 8> usualHours{12, 13, 14, 15, 16, 18, 20, 24};
constexpr std::int64_t secondsOfAnHour = 3600;
constexpr double secondsOfTheExample = 48600;

bool isUsual(std::int64_t seconds) {
  return std::ranges::any_of(usualHours, [=](std::int64_t hours) { return hours * secondsOfAnHour == seconds; });
}

}  // namespace

GoalEntry goalEntry(std::int64_t seconds) {
  return {.seconds = seconds, .isTyped = !isUsual(seconds), .typed = typedGoal(static_cast<double>(seconds))};
}

GoalEntry withUsualGoal(GoalEntry entry, std::size_t place) {
  return place < usualHours.size() ? goalEntry(usualHours[place] * secondsOfAnHour) : entry;
}

GoalEntry withFieldOpen(GoalEntry entry) {
  entry = goalEntry(entry.seconds);
  entry.isTyped = true;
  return entry;
}

GoalEntry withTypedGoal(GoalEntry entry, std::string typed) {
  const std::int64_t seconds = parseGoal(typed).value_or(0);
  entry.isUnread = seconds == 0;
  if (!entry.isUnread) entry.seconds = seconds;
  entry.typed = std::move(typed);
  return entry;
}

std::vector<GoalOffer> goalOffers(std::int64_t seconds, const PageClients& clients) {
  std::vector<GoalOffer> offers;
  for (const std::int64_t hours : usualHours) {
    const auto goal = static_cast<double>(hours * secondsOfAnHour);
    offers.push_back({goal, goalText(goal, clients.hour, clients.hourMin), hours * secondsOfAnHour == seconds});
  }
  return offers;
}

GoalChoice composeGoalChoice(const GoalEntry& entry, const std::string& problem, const PageClients& clients) {
  const auto& texts = clients.texts;
  const std::string example = typedGoal(secondsOfTheExample);
  const std::string wrong = entry.isUnread ? texts.text("Type up to 168 hours, such as 17 or 16:30.") : problem;
  const bool hasHint = entry.isTyped && wrong.empty();
  return {.title = texts.text("Goal"),
          .seconds = static_cast<double>(entry.seconds),
          .offers = goalOffers(entry.isTyped ? 0 : entry.seconds, clients),
          .customText = texts.text("Custom"),
          .isTyped = entry.isTyped,
          .fieldText = texts.text("Goal in hours"),
          .unit = texts.text("h"),
          .example = example,
          .hint = hasHint ? filledIn(texts.text("Hours, or hours and minutes, such as {1}."), {example}) : "",
          .typed = entry.typed,
          .problem = wrong,
          .canSave = !entry.isUnread,
          .saveLabel = texts.text("Save")};
}

}  // namespace mivo::host
