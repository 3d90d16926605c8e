// SPDX-License-Identifier: MIT
#include "host/pages/RemindersPage.h"

namespace mivo::host {
namespace {

std::int64_t placeOf(std::optional<std::int64_t> hours) { return hours ? *hours - leastEatingWindowHours + 1 : 0; }

Choice eatingWindowChoice(const ReminderSettings& settings, const PageClients& clients) {
  Choice choice{.title = clients.texts.text("Length of the eating window"),
                .options = {clients.texts.text("Same as last time")},
                .chosen = placeOf(settings.eatingWindowHours),
                .value = {}};
  for (std::int64_t hours = leastEatingWindowHours; hours <= mostEatingWindowHours; ++hours)
    choice.options.push_back(hoursText(hours, clients));
  choice.value = choice.options[static_cast<std::size_t>(choice.chosen)];
  return choice;
}

}  // namespace

RemindersPage composeReminders(const ReminderSettings& settings, const PageClients& clients) {
  const auto& texts = clients.texts;
  return {.title = texts.text("Reminders"),
          .goalLabel = texts.text("Goal reached"),
          .eatingWindowLabel = texts.text("Eating window"),
          .tellsGoal = settings.tellsGoal,
          .tellsEatingWindow = settings.tellsEatingWindow,
          .eatingWindow = eatingWindowChoice(settings, clients),
          .note = texts.text("Mivo tells you once a fast, also while its window is closed. Notes and weights are never "
                             "part of it.")};
}

std::optional<std::int64_t> eatingWindowHoursAt(std::int64_t place) {
  return place == 0 ? std::nullopt : std::optional{place - 1 + leastEatingWindowHours};
}

}  // namespace mivo::host
