// SPDX-License-Identifier: MIT
// What becomes of the data as a whole: files that are brought along, files that take it out, backups, and the linked
// health data.
#include <exception>
#include <utility>

#include "host/app/AppFeature.h"
#include "host/database/FaultText.h"
#include "mivo/store/Reducers.h"

namespace mivo::host {
namespace {

using Action = AppFeature::Action;
using State = AppFeature::State;
using Step = AppFeature::Step;
using Import = ImportFeature::Action;
using Phase = ImportFeature::Phase;
using Backups = BackupsFeature::Action;

RecordCounts countsOf(const History& history) {
  return {static_cast<std::int64_t>(history.fasts.size()), static_cast<std::int64_t>(history.weights.size())};
}

std::string exportedText(ExportedPart part, const std::string& path, const RecordCounts& counts,
                         const TextLookup& texts, const NumberFormatter& numbers) {
  const std::string fasts = fastCountText(counts.fasts, texts, numbers),
                    weights = weightCountText(counts.weights, texts, numbers);
  if (part == ExportedPart::everything)
    return filledIn(texts.text("Exported to {1}: {2}, {3}"), {path, fasts, weights});
  return filledIn(texts.text("Exported to {1}: {2}"), {path, part == ExportedPart::fasts ? fasts : weights});
}

std::string outcomeText(BackupsFeature::Outcome outcome, const TextLookup& texts) {
  switch (outcome) {
    case BackupsFeature::Outcome::made:
      return texts.text("The backup is made.");
    case BackupsFeature::Outcome::unchanged:
      return texts.text("Nothing has changed since the newest backup.");
    case BackupsFeature::Outcome::nothingThere:
      return texts.text("There is nothing to back up yet.");
  }
  return {};
}

bool bringsRecords(Step step) { return step == Step::importing || step == Step::addSeveral; }

}  // namespace

bool takesFiles(const State& state) {
  if (state.importing && !*state.importing->isTyped) return *state.importing->phase != Phase::writing;
  return kindOf(openScreen(state)) != ScreenKind::sheet;
}

// Files that are still being read give way to the new ones.
auto AppFeature::on(State& state, const Action::didChooseFiles& chosen) const -> Effect<Action> {
  if (chosen.paths.empty() || !takesFiles(state)) return {};
  Effect<Action> effect = on(state, Action::didOpen{Screen::importing});
  state.importing = ImportFeature::State{};
  effect.add(
      reduce(state, Action::importing{PresentationAction<Import>::presented{Import::didChooseFiles{chosen.paths}}}));
  return effect;
}

// At once, so that nothing is added but what is shown; a text that takes longer than a frame is not read.
auto AppFeature::on(State& state, const Action::didTypeFasts& typed) const -> Effect<Action> {
  constexpr std::size_t longest = 1U << 16;  // bytes, some 2,000 fasts
  if (openScreen(state) != Screen::severalFasts || *state.importing->phase == Phase::writing) return {};
  ImportFeature::State next{.isTyped = true};
  if (typed.text.size() > longest) {
    next.phase = Phase::refused;
    next.failure = texts->text("This is too long to be read at once. Add it in several parts.");
  } else if (typed.text.find_first_not_of(" \t\r\n") != std::string::npos) {
    std::vector read{files->readLines(typed.text, state.nextGoalSeconds, date->now())};
    ImportPlan plan = files->plan({state.fasts->elements(), {}, {}}, read);
    next.phase = Phase::ready;
    next.preview = std::make_shared<const ImportPreview>(ImportPreview{std::move(read), std::move(plan)});
  }
  *state.importing = std::move(next);
  return {};
}

auto AppFeature::on(State& state, const Action::importing& sent) const -> Effect<Action> {
  const auto* shown = std::get_if<PresentationAction<Import>::presented>(&sent.action);
  const bool isConfirmed = shown && std::holds_alternative<Import::didTapImport>(shown->action);
  return isConfirmed && state.importing && *state.importing->phase == Phase::ready ? writeImport(state)
                                                                                   : Effect<Action>{};
}

// Held against the history once more: another program may have written since the preview. It goes on when the preview
// is closed.
auto AppFeature::writeImport(State& state) const -> Effect<Action> {
  state.importing->phase = Phase::writing;
  state.importing->failure = std::string{};
  state.failure = std::string{};
  return Effect<Action>::run(
      [](const Send<Action>& send, const StopToken&, const Client<HistoryClient>& client, const Client<DataFiles>& data,
         const Client<TextLookup>& lookup, const std::shared_ptr<const ImportPreview>& preview, Step step) {
        HistoryChange change;
        try {
          change = data->plan(client->load(), preview->files).change;
          if (!change.isEmpty()) client->apply(change);
        } catch (const std::exception& error) {
          return send(Action::didFailToWrite{step, {}, faultText(error, *lookup)});
        }
        send(Action::didWrite{step, std::move(change)});
      },
      history, files, texts, *state.importing->preview, *state.importing->isTyped ? Step::addSeveral : Step::importing);
}

auto AppFeature::on(State& state, const Action::didSwitchPrintedWeights&) const -> Effect<Action> {
  state.printsWeights = !state.printsWeights;
  return {};
}

auto AppFeature::on(State& state, const Action::didExport& asked) const -> Effect<Action> {
  Effect<Action> effect = on(state, Action::didClose{Screen::exporting});
  if (asked.part == ExportedPart::pages || asked.part == ExportedPart::picture) {
    effect.add(print(state, asked.path));
    return effect;
  }
  effect.add(Effect<Action>::run(
      [](const Send<Action>& send, const StopToken&, const Client<HistoryClient>& client, const Client<DataFiles>& data,
         const Client<TextLookup>& lookup, const Client<NumberFormatter>& counts, ExportedPart part,
         const std::string& path) {
        try {
          const History records = client->load();
          data->write(part, records, path);
          send(Action::didFail{exportedText(part, path, countsOf(records), *lookup, *counts)});
        } catch (const std::exception& error) {
          send(Action::didFail{faultText(error, *lookup)});
        }
      },
      history, files, texts, numbers, asked.part, asked.path));
  return effect;
}

auto AppFeature::print(const State& state, const std::string& file) const -> Effect<Action> {
  return Effect<Action>::run(
      [](const Send<Action>& send, const StopToken&, const Client<DataFiles>& data, const Client<TextLookup>& lookup,
         const std::string& path, TimeRange range, PrintedWeights weights) {
        try {
          data->print(path, range, weights);
          send(Action::didFail{filledIn(lookup->text("Exported to {1}"), {path})});
        } catch (const std::exception& error) {
          send(Action::didFail{faultText(error, *lookup)});
        }
      },
      files, texts, file, *state.statistics.timeRange,
      state.printsWeights ? PrintedWeights::shown : PrintedWeights::hidden);
}

auto AppFeature::on(State& state, const Action::backups& sent) const -> Effect<Action> {
  if (const auto* made = std::get_if<Backups::didBackUp>(&sent.action))
    state.failure = outcomeText(made->outcome, *texts);
  else if (const auto* moved = std::get_if<Backups::didMove>(&sent.action))
    state.failure = moved->sentence;
  else if (const auto* failed = std::get_if<Backups::didFail>(&sent.action))
    state.failure = failed->sentence;
  else if (std::holds_alternative<Backups::didTapRestore>(sent.action) && *state.backups.chosen &&
           !*state.backups.isRestoring)
    return restore(state);
  return {};
}

auto AppFeature::restore(State& state) const -> Effect<Action> {
  state.backups.isRestoring = true;
  state.backups.failure = std::string{};
  state.failure = std::string{};
  return Effect<Action>::run(
      [](const Send<Action>& send, const StopToken&, const Client<DataFiles>& data, const Client<TextLookup>& lookup,
         const std::filesystem::path& file, Date now) {
        try {
          auto restored = data->restore(file, now);
          if (!restored) return send(Action::didFailToWrite{Step::restore, {}, describe(restored.error())});
          send(Action::didWrite{Step::restore, std::move(restored->change)});
        } catch (const std::exception& error) {
          send(Action::didFailToWrite{Step::restore, {}, faultText(error, *lookup)});
        }
      },
      files, texts, (*state.backups.chosen)->backup.file, date->now());
}

// The same fault is said once, however often it is tried. What has come is read with all else that is on disk: another
// program's changes may lie in between.
auto AppFeature::on(State& state, const Action::health& sent) const -> Effect<Action> {
  using Health = HealthFeature::Action;
  const std::string fault = *state.health.fault, notice = *state.health.notice;
  Effect<Action> effect = scope<Action::health>(&State::health, healthFeature)(state, Action{sent});
  if (*state.health.notice != notice && !state.health.notice->empty()) state.failure = *state.health.notice;
  if (*state.health.fault != fault && !state.health.fault->empty()) state.failure = *state.health.fault;
  if (std::holds_alternative<Health::didLink>(sent.action)) effect.add(didChangeAccess(state, true));
  if (std::holds_alternative<Health::didUnlink>(sent.action)) effect.add(didChangeAccess(state, false));
  const auto* synced = std::get_if<Health::didSync>(&sent.action);
  if (synced && synced->added > 0) effect.add(on(state, Action::reload{}));
  return effect;
}

// The statistics would ask only when they appear again, and show until then what they were told before.
auto AppFeature::didChangeAccess(State& state, bool isAllowed) const -> Effect<Action> {
  using Sent = StatisticsFeature::Action;
  Effect<Action> effect;
  if (isAllowed) effect.add(reduce(state, Action::statistics{Sent::requestHealthKitAccess{}}));
  effect.add(reduce(state, Action::statistics{Sent::shouldRequestHealthKitAuthorizationResponse{!isAllowed}}));
  return effect;
}

auto AppFeature::didWriteData(State& state, const Action::didWrite& written) const -> Effect<Action> {
  const bool isNothing = written.change.isEmpty();
  if (bringsRecords(written.step)) {
    if (state.importing && *state.importing->phase == Phase::writing) state.importing = {};
    if (isNothing) state.failure = texts->text("All of it is there already.");
  }
  if (written.step != Step::restore) return {};
  state.backups.isRestoring = false;
  state.backups.chosen = std::nullopt;
  if (isNothing) state.failure = texts->text("Your records are those of this backup already.");
  return reduce(state, Action::backups{Backups::list{true}});
}

bool AppFeature::isSaidWhereItWasTried(State& state, const Action::didFailToWrite& failed) const {
  if (bringsRecords(failed.step) && state.importing && *state.importing->phase == Phase::writing) {
    state.importing->phase = Phase::ready;
    state.importing->failure = failed.sentence;
    return true;
  }
  if (failed.step != Step::restore) return false;
  state.backups.isRestoring = false;
  if (*state.backups.chosen) state.backups.failure = failed.sentence;
  return state.backups.chosen->has_value();
}

}  // namespace mivo::host
