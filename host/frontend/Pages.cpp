// SPDX-License-Identifier: MIT
#include "host/frontend/Pages.h"

#include <utility>

namespace mivo::host {
namespace {

/// The presented screen of a kind, where that is the one.
template <class Case>
const auto* presentedIn(Source source) {
  const auto& destination = source.state.statistics.destination;
  const auto* shown = destination ? std::get_if<Case>(&*destination) : nullptr;
  return shown ? &shown->state : nullptr;
}

using Presented = StatisticsFeature::Destination::StateCases;

/// Dates of a chart are seen from the last recomputation, which its bars and points are of.
PageClients clientsOfCharts(Source source) { return pageClients(source.dependencies(), source.state.now); }

}  // namespace

LineChartPage lineChartPage(Source source, const drawing::LineChart& chart, const KeptLineChart& kept) {
  return composeLineChart(chart, source.lineChartsScroll(), kept.visible(), clientsOfCharts(source));
}

std::optional<BadgesPage> badgesPage(Source source) {
  const auto* shown = presentedIn<Presented::badges>(source);
  if (!shown) return std::nullopt;
  return composeBadges(*shown, source.state.statistics.streakSettings->countingEntity, source.texts(),
                       *source.dependencies().numberFormatter);
}

std::optional<DonationsPage> donationsPage(Source source) {
  const auto* shown = presentedIn<Presented::donations>(source);
  return shown ? std::optional{composeDonations(*shown, source.texts())} : std::nullopt;
}

std::optional<RoadmapPage> roadmapPage(Source source) {
  if (!source.roadmap) return std::nullopt;
  return composeRoadmap(source.roadmap->state(), RoadmapFeedbackView::configuration().allowVotes, source.texts(),
                        *source.dependencies().numberFormatter);
}

std::optional<RepairSheet> repairSheet(Source source) {
  const auto& proposed = *source.state.overlapRepair;
  return proposed ? std::optional{composeRepairSheet(*proposed, source.clients())} : std::nullopt;
}

std::optional<AddWeightForm> editedWeightForm(Source source) {
  const auto& edited = source.state.editedWeight;
  return edited ? std::optional{composeAddWeight(edited->entry, source.clients())} : std::nullopt;
}

std::optional<FastSheet> editedFastSheet(Source source) {
  const auto& draft = *source.state.draft;
  return draft ? std::optional{composeFastSheet(*draft, *source.state.fasts, source.clients())} : std::nullopt;
}

std::optional<SeveralFastsSheet> severalFastsSheet(Source source) {
  if (openScreen(source.state) != Screen::severalFasts) return std::nullopt;
  return composeSeveralFastsSheet(*source.state.importing, source.clients());
}

std::optional<RestoreSheet> restoreSheet(Source source) {
  if (!*source.state.backups.chosen) return std::nullopt;
  return composeRestoreSheet(source.state, source.clients());
}

MailPage mailPage(Source source) {
  const auto& [text, replyTo] = *source.idea;
  return {.canSend = isIdea(text),
          .address = source.services.feedbackAddress,
          .subject = "Mivo",
          .body = feedbackMessage(text, replyTo)};
}

std::optional<Reminder> nextReminderOf(Source source) {
  return nextReminder(*source.state.fasts, source.state.settings.reminders,
                      toldFasts(*source.dependencies().userDefaults), source.clients().now);
}

DateChoicePage dateChoicePage(Source source) {
  const PageClients clients = source.clients();
  DateChoicePage page{composeDateTimeChoice(source.date, clients), source.isDateRefused, {}};
  page.startProblem = startProblem(*source.state.fasts, page.choice.instant, clients);
  return page;
}

SettingsFacts settingsFactsOf(Source source) {
  return settingsFacts(source.state, source.services.calendar->usualFirstWeekday(), source.services.about.version,
                       source.clients());
}

std::string goalProblem(Source source) {
  const auto sheet = editedFastSheet(source);
  return sheet ? sheet->goalProblem : std::string{};
}

TableRow barRow(Source source, const ScrollChartFeature::State& chart, std::size_t place) {
  const auto clients = source.barClients();
  return {drawing::barDates(chart, place, clients), drawing::barTime(chart, place, clients)};
}

TableRow pointRow(Source source, const drawing::LineChart& chart, std::size_t place) {
  auto [date, value] = chart.row(place, clientsOfCharts(source));
  return {std::move(date), std::move(value)};
}

}  // namespace mivo::host
