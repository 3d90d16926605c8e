// SPDX-License-Identifier: MIT
#include "RepairModel.h"

#include <algorithm>
#include <vector>

#include "app/bridge/Text.h"

namespace mivo::app {
namespace {

using host::FastRecord;

std::string formatted(Date date, const char* skeleton) {
  return dependency(&Dependencies::dateFormatter)->string(date, skeleton).value_or("");
}

std::string times(const FastingDataEntry& fast) {
  const std::string end = fast.finished ? formatted(fast.finished->end, "jm") : "";
  return formatted(fast.start, "jm") + " – " + end;
}

std::string joined(const std::vector<const FastRecord*>& fasts) {
  const auto& texts = *dependency(&Dependencies::texts);
  std::string all;
  for (const FastRecord* record : fasts)
    all = all.empty() ? times(record->fast) : filledIn(texts.text("{1} and {2}"), {all, times(record->fast)});
  return all;
}

bool holds(const FastingDataEntry& whole, const FastingDataEntry& part) {
  return whole.start <= part.start && (!whole.finished || (part.finished && part.finished->end <= whole.finished->end));
}

// The fasts that became this one: itself, and those that are gone and lie within it.
std::vector<const FastRecord*> sources(const FastRecord& made, const host::HistoryChange& change) {
  std::vector<const FastRecord*> found;
  for (const FastRecord& old : change.removedFasts) {
    const bool isKept =
        std::ranges::any_of(change.addedFasts, [&](const auto& one) { return one.fast.id == old.fast.id; });
    if (old.fast.id == made.fast.id || (!isKept && holds(made.fast, old.fast))) found.push_back(&old);
  }
  return found;
}

}  // namespace

RepairModel::RepairModel(std::function<void(Action)> sends, QObject* parent)
    : QObject{parent}, send{std::move(sends)} {}

void RepairModel::follow(const std::optional<host::HistoryChange>& proposal) {
  if (proposal == change) return;
  change = proposal;
  Q_EMIT changed();
}

QString RepairModel::summary() const {
  const auto& texts = *dependency(&Dependencies::texts);
  const std::string number = dependency(&Dependencies::numberFormatter)->string(count());
  return qString(filledIn(
      texts.plural("{1} fast will change. You can undo this.", "{1} fasts will change. You can undo this.", count()),
      {number}));
}

QString RepairModel::buttonText() const {
  const auto& texts = *dependency(&Dependencies::texts);
  const std::string number = dependency(&Dependencies::numberFormatter)->string(count());
  return qString(filledIn(texts.plural("Fix {1} fast", "Fix {1} fasts", count()), {number}));
}

QList<RepairRow> RepairModel::rows() const {
  QList<RepairRow> all;
  if (!change) return all;
  const auto& texts = *dependency(&Dependencies::texts);
  for (const FastRecord& made : change->addedFasts) {
    const auto before = sources(made, *change);
    all.append({qString(formatted(made.fast.start, "EEEdMMM")),
                qString(before.size() > 1 ? texts.text("Merged") : texts.text("Trimmed")), qString(joined(before)),
                qString(times(made.fast))});
  }
  return all;
}

void RepairModel::cancel() {
  if (change) send(Action::didCancelOverlapRepair{});
}

}  // namespace mivo::app
