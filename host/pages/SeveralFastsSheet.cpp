// SPDX-License-Identifier: MIT
#include "host/pages/SeveralFastsSheet.h"

#include <cstdint>
#include <utility>

namespace mivo::host {
namespace {

/// Of a fast that has just passed, as the user's language writes its dates.
std::string hint(const PageClients& clients) {
  const auto written = [&clients](double hoursAgo) {
    const Date date = startOfMinute(clients.now) - Duration{hoursAgo * secondsPerHour};
    return clients.dates.string(date, "yMdjm").value_or("");
  };
  constexpr double start = 64, end = 48;
  return clients.texts.text("yesterday 20:00 - 12:00") + '\n' + written(start) + " - " + written(end);
}

}  // namespace

SeveralFastsSheet composeSeveralFastsSheet(const ImportFeature::State& state, const PageClients& clients) {
  const TextLookup& texts = clients.texts;
  SeveralFastsSheet sheet;
  sheet.title = texts.text("Add several fasts");
  sheet.text = texts.text(
      "Type or paste past fasts, one a line: the start, a dash and the end, or the start, a comma and the length.");
  sheet.fieldLabel = texts.text("Fasts, one a line");
  sheet.hint = hint(clients);
  sheet.fault = state.failure;
  sheet.button = texts.text("Add fasts");
  sheet.isBusy = *state.phase == ImportFeature::Phase::writing;
  sheet.cancelLabel = texts.text("Cancel");
  if (!*state.preview) return sheet;
  const ImportPlan& plan = (*state.preview)->plan;
  sheet.summary = importCountsText(plan.counts.front(), clients);
  RefusedRows refused = composeRefusedRows(plan.refused, {}, clients);
  sheet.refusedTitle = std::move(refused.title);
  sheet.refused = std::move(refused.rows);
  sheet.moreRefused = std::move(refused.more);
  sheet.canAdd = !plan.change.isEmpty() && !sheet.isBusy;
  if (plan.change.isEmpty()) return sheet;
  const auto count = static_cast<std::int64_t>(plan.change.addedFasts.size());
  sheet.button = filledIn(texts.text("Add {1}"), {fastCountText(count, texts, clients.numbers)});
  return sheet;
}

}  // namespace mivo::host
