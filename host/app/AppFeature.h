// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

#include "host/app/HistoryClient.h"
#include "mivo/statistics/StatisticsFeature.h"
#include "mivo/store/List.h"

namespace mivo::host {

/// The whole app without a screen: owns the fasts and weights, keeps them in the database, and recomputes the
/// statistics whenever they, the settings or the time change.
///
/// A record appears in the state once it is on disk, never before. What fails is said in `failure` and changes nothing;
/// nor does what no record can be (a `RecordFault`, a second running fast), whichever screen sends it.
struct AppFeature {
  /// What the user did, for the texts of undo and failure.
  enum class Step { start, stop, edit, add, remove, addWeight, removeWeight, repairOverlaps, undo };

  struct UndoOffer {
    Step step;
    HistoryChange change;  ///< undoes it
    bool operator==(const UndoOffer&) const = default;
  };

  struct State {
    StatisticsFeature::State statistics;
    Observed<List<FastRecord>> fasts = List<FastRecord>{};                ///< by start
    Observed<List<BodyWeightSample>> weights = List<BodyWeightSample>{};  ///< by date
    Observed<Date> now;                                                   ///< of the last recomputation
    Observed<std::optional<HistoryChange>> overlapRepair = std::optional<HistoryChange>{};  ///< proposed, not yet done
    Observed<std::optional<UndoOffer>> undo = std::optional<UndoOffer>{};
    Observed<std::string> failure = std::string{};  ///< one sentence, until dismissed

    /// A state before anything was loaded; weights are shown in that unit until the user chooses another.
    static State make(TimeRange timeRange, WeightUnit usualUnit = WeightUnit::kilograms);
    const FastRecord* runningFast() const;
    bool operator==(const State&) const = default;
  };

  struct Cases {
    struct statistics {
      StatisticsFeature::Action action;
      bool operator==(const statistics&) const = default;
    };
    /// The app is on screen, or another program has changed the database: reads everything anew.
    struct reload {
      bool operator==(const reload&) const = default;
    };
    struct didLoad {
      History history;
      bool operator==(const didLoad&) const = default;
    };
    struct didFail {
      std::string sentence;
      bool operator==(const didFail&) const = default;
    };
    /// A setting was changed in the user's defaults: reads them all anew.
    struct didChangeSettings {
      bool operator==(const didChangeSettings&) const = default;
    };
    /// Time has passed.
    struct recompute {
      bool operator==(const recompute&) const = default;
    };
    struct didTapStart {
      Date start;
      std::int64_t goalSeconds;
      bool operator==(const didTapStart&) const = default;
    };
    struct didTapStop {
      Date end;
      bool operator==(const didTapStop&) const = default;
    };
    /// An edited fast, known by its id, or a new one.
    struct didSaveFast {
      FastRecord record;
      bool operator==(const didSaveFast&) const = default;
    };
    struct didDeleteFast {
      UUID id;
      bool operator==(const didDeleteFast&) const = default;
    };
    struct didDeleteWeight {
      UUID id;
      bool operator==(const didDeleteWeight&) const = default;
    };
    struct didConfirmOverlapRepair {
      bool operator==(const didConfirmOverlapRepair&) const = default;
    };
    struct didCancelOverlapRepair {
      bool operator==(const didCancelOverlapRepair&) const = default;
    };
    struct didTapUndo {
      bool operator==(const didTapUndo&) const = default;
    };
    /// What was not undone can still be.
    struct didFailToUndo {
      UndoOffer offer;
      std::string sentence;
      bool operator==(const didFailToUndo&) const = default;
    };
    /// The failure, and without one the offer to undo.
    struct didDismissMessages {
      bool operator==(const didDismissMessages&) const = default;
    };
    struct didWrite {
      Step step;
      HistoryChange change;
      bool operator==(const didWrite&) const = default;
    };
  };
  struct Action
      : Cases,
        std::variant<Cases::statistics, Cases::reload, Cases::didLoad, Cases::didFail, Cases::didChangeSettings,
                     Cases::recompute, Cases::didTapStart, Cases::didTapStop, Cases::didSaveFast, Cases::didDeleteFast,
                     Cases::didDeleteWeight, Cases::didConfirmOverlapRepair, Cases::didCancelOverlapRepair,
                     Cases::didTapUndo, Cases::didFailToUndo, Cases::didDismissMessages, Cases::didWrite> {
    using variant::variant;
  };

  Client<HistoryClient> history;
  Client<DateGenerator> date = dependency(&Dependencies::date);
  Client<UUIDGenerator> uuid = dependency(&Dependencies::uuid);
  Client<UserDefaults> userDefaults = dependency(&Dependencies::userDefaults);
  Client<TextLookup> texts = dependency(&Dependencies::texts);
  Client<MassFormatter> masses = dependency(&Dependencies::massFormatter);
  StatisticsFeature statistics = {};

  Effect<Action> reduce(State& state, const Action& action) const;

 private:
  Effect<Action> on(State& state, const Action::statistics& sent) const;
  Effect<Action> on(State& state, const Action::reload& sent) const;
  Effect<Action> on(State& state, const Action::didLoad& sent) const;
  Effect<Action> on(State& state, const Action::didFail& sent) const;
  Effect<Action> on(State& state, const Action::didChangeSettings& sent) const;
  Effect<Action> on(State& state, const Action::recompute& sent) const;
  Effect<Action> on(State& state, const Action::didTapStart& sent) const;
  Effect<Action> on(State& state, const Action::didTapStop& sent) const;
  Effect<Action> on(State& state, const Action::didSaveFast& sent) const;
  Effect<Action> on(State& state, const Action::didDeleteFast& sent) const;
  Effect<Action> on(State& state, const Action::didDeleteWeight& sent) const;
  Effect<Action> on(State& state, const Action::didConfirmOverlapRepair& sent) const;
  Effect<Action> on(State& state, const Action::didCancelOverlapRepair& sent) const;
  Effect<Action> on(State& state, const Action::didTapUndo& sent) const;
  Effect<Action> on(State& state, const Action::didFailToUndo& sent) const;
  Effect<Action> on(State& state, const Action::didDismissMessages& sent) const;
  Effect<Action> on(State& state, const Action::didWrite& sent) const;
  void takeSettings(State& state) const;
  Effect<Action> saveWeight(State& state, const BodyWeightSample& sample) const;
  Effect<Action> write(Step step, HistoryChange change) const;
  std::optional<std::string> refusal(const State& state, const FastRecord& record,
                                     const std::optional<FastRecord>& before = {}) const;
  Effect<Action> refuse(State& state, std::string sentence) const;
  void recompute(State& state) const;
};

template <RecordOf<AppFeature::State> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [statistics, fasts, weights, now, overlapRepair, undo, failure] = record;
  visit("statistics", statistics);
  visit("fasts", fasts);
  visit("weights", weights);
  visit("now", now);
  visit("overlapRepair", overlapRepair);
  visit("undo", undo);
  visit("failure", failure);
}

}  // namespace mivo::host
