// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <variant>

#include "host/app/Screens.h"
#include "host/app/SettingsFeature.h"
#include "host/data/BackupsFeature.h"
#include "host/data/ImportFeature.h"
#include "host/fasting/FastDraft.h"
#include "host/fasting/HistoryClient.h"
#include "host/health/HealthFeature.h"
#include "host/history/FieldRules.h"
#include "mivo/statistics/StatisticsFeature.h"
#include "mivo/store/List.h"
#include "mivo/store/Presentation.h"

namespace mivo::host {

/// The whole app without a screen: owns the fasts and weights, keeps them in the database, and recomputes the
/// statistics whenever they, the settings or the time change.
///
/// A record appears in the state once it is on disk, never before. What fails or is refused (`host/fasting` says what
/// is) changes nothing and is said in `failure`, or where it was tried: in the draft, in the card.
struct AppFeature {
  /// What the user did, for the texts of undo and failure.
  enum class Step {
    start,
    stop,
    stopAtOnce,
    edit,
    add,
    addSeveral,
    remove,
    addWeight,
    editWeight,
    removeWeight,
    repairOverlaps,
    importing,
    restore,
    undo
  };

  struct UndoOffer {
    Step step;
    HistoryChange change;  ///< undoes it
    bool isTaken = false;  ///< it is being undone
    bool operator==(const UndoOffer&) const = default;
  };

  /// A weight of the list while it is edited: in a field and with a date, as where weights are added.
  struct EditedWeight {
    BodyWeightSample before;  ///< as it is kept
    AddWeightLogFeature::State entry;
    bool operator==(const EditedWeight&) const = default;
  };

  struct State {
    StatisticsFeature::State statistics;
    Observed<List<FastRecord>> fasts = List<FastRecord>{};                ///< by start
    Observed<List<BodyWeightSample>> weights = List<BodyWeightSample>{};  ///< by date
    Observed<std::int64_t> version = std::int64_t{0};             ///< of the history, when it was looked at last
    Observed<Date> now;                                           ///< of the last recomputation
    Observed<std::int64_t> nextGoalSeconds = defaultGoalSeconds;  ///< what the next fast is meant to last
    Observed<std::optional<FastDraft>> draft = std::optional<FastDraft>{};
    Presentation<EditedWeight> editedWeight = {};
    Observed<bool> printsWeights = false;  ///< where the statistics are exported
    Observed<std::optional<HistoryChange>> overlapRepair = std::optional<HistoryChange>{};  ///< proposed, not yet done
    Presentation<ImportFeature::State> importing = {};
    BackupsFeature::State backups = {};
    HealthFeature::State health = {};
    SettingsFeature::State settings = {};
    Observed<std::optional<UndoOffer>> undo = std::optional<UndoOffer>{};
    Observed<std::string> failure = std::string{};  ///< one sentence, until dismissed
    /// The innermost that is open of those that nothing else here tells of; `openScreen` knows them all.
    Observed<Screen> screen = Screen::statistics;

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
    /// Reads settings and history before it returns, so that the first frame is complete.
    struct load {
      bool operator==(const load&) const = default;
    };
    /// Reads everything anew where another program has changed the history since it was looked at last.
    struct lookForChanges {
      bool operator==(const lookForChanges&) const = default;
    };
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
    /// The app has started, and can be seen.
    struct didStart {
      bool operator==(const didStart&) const = default;
    };
    /// Time has passed.
    struct recompute {
      bool operator==(const recompute&) const = default;
    };
    /// The system's clock shows another zone than before, whose name this is: every text of a date is another one, no
    /// record is.
    struct didChangeZone {
      std::string zone;
      bool operator==(const didChangeZone&) const = default;
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
    /// Closes what it does not stand over, and opens what it stands over and then itself, where there is something to
    /// be shown there: no fast is edited where none is recorded.
    struct didOpen {
      Screen screen;
      bool operator==(const didOpen&) const = default;
    };
    /// Nothing unless it is the innermost that is open: a sheet that is closed from elsewhere tells of it once more.
    struct didClose {
      Screen screen;
      bool operator==(const didClose&) const = default;
    };
    /// Closes the innermost that is open; a tab stays.
    struct didGoBack {
      bool operator==(const didGoBack&) const = default;
    };
    /// Of the running fast.
    struct didChangeStart {
      Date start;
      bool operator==(const didChangeStart&) const = default;
    };
    /// Of the running fast, and of those to come.
    struct didChangeGoal {
      std::int64_t goalSeconds;
      bool operator==(const didChangeGoal&) const = default;
    };
    struct didTapEditFast {
      UUID id;
      bool operator==(const didTapEditFast&) const = default;
    };
    struct didTapAddFast {
      bool operator==(const didTapAddFast&) const = default;
    };
    struct didChangeDraftStart {
      Date start;
      bool operator==(const didChangeDraftStart&) const = default;
    };
    struct didChangeDraftEnd {
      Date end;
      bool operator==(const didChangeDraftEnd&) const = default;
    };
    struct didChangeDraftGoal {
      std::int64_t goalSeconds;
      bool operator==(const didChangeDraftGoal&) const = default;
    };
    struct didChangeDraftNote {
      std::string note;
      bool operator==(const didChangeDraftNote&) const = default;
    };
    /// The draft is gone once it is on disk.
    struct didTapSaveDraft {
      bool operator==(const didTapSaveDraft&) const = default;
    };
    struct didDismissDraft {
      bool operator==(const didDismissDraft&) const = default;
    };
    struct didDeleteFast {
      UUID id;
      bool operator==(const didDeleteFast&) const = default;
    };
    struct didTapEditWeight {
      UUID id;
      bool operator==(const didTapEditWeight&) const = default;
    };
    /// The weight is no longer edited once it is on disk.
    struct editedWeight {
      PresentationAction<AddWeightLogFeature::Action> action;
      bool operator==(const editedWeight&) const = default;
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
    /// Files were chosen, or dropped on the window: shows what they hold, where nothing else is open that would be
    /// lost.
    struct didChooseFiles {
      std::vector<std::string> paths;
      bool operator==(const didChooseFiles&) const = default;
    };
    /// Into the field for several fasts: all that it holds now.
    struct didTypeFasts {
      std::string text;
      bool operator==(const didTypeFasts&) const = default;
    };
    /// The preview is gone once what it shows is on disk.
    struct importing {
      PresentationAction<ImportFeature::Action> action;
      bool operator==(const importing&) const = default;
    };
    struct didSwitchPrintedWeights {
      bool operator==(const didSwitchPrintedWeights&) const = default;
    };
    struct didExport {
      ExportedPart part;
      std::string path;
      bool operator==(const didExport&) const = default;
    };
    struct backups {
      BackupsFeature::Action action;
      bool operator==(const backups&) const = default;
    };
    struct health {
      HealthFeature::Action action;
      bool operator==(const health&) const = default;
    };
    struct settings {
      SettingsFeature::Action action;
      bool operator==(const settings&) const = default;
    };
    /// Has read what failed; without a failure, takes the offer to undo.
    struct didTapMessage {
      bool operator==(const didTapMessage&) const = default;
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
    struct didFailToWrite {
      Step step;
      HistoryChange change;
      std::string sentence;
      bool operator==(const didFailToWrite&) const = default;
    };
  };
  struct Action
      : Cases,
        std::variant<Cases::statistics, Cases::load, Cases::lookForChanges, Cases::reload, Cases::didLoad,
                     Cases::didFail, Cases::didStart, Cases::recompute, Cases::didChangeZone, Cases::didOpen,
                     Cases::didClose, Cases::didGoBack, Cases::didTapStart, Cases::didTapStop, Cases::didChangeStart,
                     Cases::didChangeGoal, Cases::didTapEditFast, Cases::didTapAddFast, Cases::didChangeDraftStart,
                     Cases::didChangeDraftEnd, Cases::didChangeDraftGoal, Cases::didChangeDraftNote,
                     Cases::didTapSaveDraft, Cases::didDismissDraft, Cases::didDeleteFast, Cases::didTapEditWeight,
                     Cases::editedWeight, Cases::didDeleteWeight, Cases::didConfirmOverlapRepair,
                     Cases::didCancelOverlapRepair, Cases::didChooseFiles, Cases::didTypeFasts, Cases::importing,
                     Cases::didSwitchPrintedWeights, Cases::didExport, Cases::backups, Cases::health, Cases::settings,
                     Cases::didTapMessage, Cases::didDismissMessages, Cases::didWrite, Cases::didFailToWrite> {
    using variant::variant;
  };

  Client<HistoryClient> history;
  Client<DataFiles> files = {};
  Client<LinkedHealthClient> linkedHealth = {};  ///< none: no health data at all
  std::function<void(std::optional<int>)> chooseFirstWeekday = {};
  /// Has the user told of what they want to be told of while nobody looks at the app; a sentence where that fails.
  std::function<std::optional<std::string>(const ReminderSettings&)> keepReminding = {};
  Client<DateGenerator> date = dependency(&Dependencies::date);
  Client<UUIDGenerator> uuid = dependency(&Dependencies::uuid);
  Client<UserDefaults> userDefaults = dependency(&Dependencies::userDefaults);
  Client<TextLookup> texts = dependency(&Dependencies::texts);
  Client<MassFormatter> masses = dependency(&Dependencies::massFormatter);
  Client<NumberFormatter> numbers = dependency(&Dependencies::numberFormatter);
  StatisticsFeature statistics = {};
  AddWeightLogFeature weightEntry = {};
  ImportFeature importFeature = {files, history, texts};
  BackupsFeature backupsFeature = {files, history, texts, date};
  HealthFeature healthFeature = {linkedHealth, files, history, texts};
  SettingsFeature settingsFeature = {userDefaults, dependency(&Dependencies::appGroupUserDefaults), chooseFirstWeekday};

  Effect<Action> reduce(State& state, const Action& action) const;

 private:
  Effect<Action> on(State& state, const Action::statistics& sent) const;
  Effect<Action> on(State& state, const Action::load& sent) const;
  Effect<Action> on(State& state, const Action::lookForChanges& sent) const;
  Effect<Action> on(State& state, const Action::reload& sent) const;
  Effect<Action> on(State& state, const Action::didLoad& sent) const;
  Effect<Action> on(State& state, const Action::didFail& sent) const;
  Effect<Action> on(State& state, const Action::didStart& sent) const;
  Effect<Action> on(State& state, const Action::recompute& sent) const;
  Effect<Action> on(State& state, const Action::didChangeZone& sent) const;
  Effect<Action> on(State& state, const Action::didOpen& sent) const;
  Effect<Action> on(State& state, const Action::didClose& sent) const;
  Effect<Action> on(State& state, const Action::didGoBack& sent) const;
  Effect<Action> on(State& state, const Action::didTapStart& sent) const;
  Effect<Action> on(State& state, const Action::didTapStop& sent) const;
  Effect<Action> on(State& state, const Action::didChangeStart& sent) const;
  Effect<Action> on(State& state, const Action::didChangeGoal& sent) const;
  Effect<Action> on(State& state, const Action::didTapEditFast& sent) const;
  Effect<Action> on(State& state, const Action::didTapAddFast& sent) const;
  Effect<Action> on(State& state, const Action::didChangeDraftStart& sent) const;
  Effect<Action> on(State& state, const Action::didChangeDraftEnd& sent) const;
  Effect<Action> on(State& state, const Action::didChangeDraftGoal& sent) const;
  Effect<Action> on(State& state, const Action::didChangeDraftNote& sent) const;
  Effect<Action> on(State& state, const Action::didTapSaveDraft& sent) const;
  Effect<Action> on(State& state, const Action::didDismissDraft& sent) const;
  Effect<Action> on(State& state, const Action::didDeleteFast& sent) const;
  Effect<Action> on(State& state, const Action::didTapEditWeight& sent) const;
  Effect<Action> on(State& state, const Action::editedWeight& sent) const;
  Effect<Action> on(State& state, const Action::didDeleteWeight& sent) const;
  Effect<Action> on(State& state, const Action::didConfirmOverlapRepair& sent) const;
  Effect<Action> on(State& state, const Action::didCancelOverlapRepair& sent) const;
  Effect<Action> on(State& state, const Action::didChooseFiles& sent) const;
  Effect<Action> on(State& state, const Action::didTypeFasts& sent) const;
  Effect<Action> on(State& state, const Action::importing& sent) const;
  Effect<Action> on(State& state, const Action::didSwitchPrintedWeights& sent) const;
  Effect<Action> on(State& state, const Action::didExport& sent) const;
  Effect<Action> print(const State& state, const std::string& file) const;
  Effect<Action> on(State& state, const Action::backups& sent) const;
  Effect<Action> on(State& state, const Action::health& sent) const;
  Effect<Action> on(State& state, const Action::settings& sent) const;
  Effect<Action> on(State& state, const Action::didTapMessage& sent) const;
  Effect<Action> on(State& state, const Action::didDismissMessages& sent) const;
  Effect<Action> on(State& state, const Action::didWrite& sent) const;
  Effect<Action> on(State& state, const Action::didFailToWrite& sent) const;
  Effect<Action> enter(State& state, Screen screen) const;
  Effect<Action> openDonations(State& state) const;
  Effect<Action> leave(State& state, Screen screen) const;
  Effect<Action> backTo(State& state, Screen screen) const;
  void takeSettings(State& state) const;
  void remind(State& state) const;
  void recompute(State& state) const;
  Effect<Action> saveWeight(State& state, const BodyWeightSample& sample) const;
  Effect<Action> saveEditedWeight(State& state, const BodyWeightSample& accepted) const;
  Effect<Action> tellEditedWeight(State& state, AddWeightLogFeature::Action action) const;
  Effect<Action> tellWeightCard(State& state, AddWeightLogFeature::Action action) const;
  Effect<Action> writeOrSay(State& state, Step step, Outcome outcome) const;
  Effect<Action> write(State& state, Step step, HistoryChange change) const;
  Effect<Action> writeImport(State& state) const;
  Effect<Action> restore(State& state) const;
  Effect<Action> didChangeAccess(State& state, bool isAllowed) const;
  Effect<Action> didWriteData(State& state, const Action::didWrite& written) const;
  bool isSaidWhereItWasTried(State& state, const Action::didFailToWrite& failed) const;
};

/// The innermost that is open.
Screen openScreen(const AppFeature::State& state);

/// Whether files can be brought along now: not while a sheet is open, which they would close, or an import is written.
bool takesFiles(const AppFeature::State& state);

/// "Fast deleted": what was done, beside the offer to undo it; empty for a step without one.
std::string doneText(const AppFeature::UndoOffer& offer, const TextLookup& texts, const NumberFormatter& numbers);

template <RecordOf<AppFeature::Cases::didTapStart> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [start, goalSeconds] = record;
  visit("start", start);
  visit("goalSeconds", goalSeconds);
}

template <RecordOf<AppFeature::Cases::didExport> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [part, path] = record;
  visit("part", part);
  visit("path", path);
}

template <RecordOf<AppFeature::EditedWeight> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [before, entry] = record;
  visit("before", before);
  visit("entry", entry);
}

template <RecordOf<AppFeature::State> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [statistics, fasts, weights, version, now, nextGoalSeconds, draft, editedWeight, printsWeights, overlapRepair,
         importing, backups, health, settings, undo, failure, screen] = record;
  visit("statistics", statistics);
  visit("fasts", fasts);
  visit("weights", weights);
  visit("version", version);
  visit("now", now);
  visit("nextGoalSeconds", nextGoalSeconds);
  visit("draft", draft);
  visit("editedWeight", editedWeight);
  visit("printsWeights", printsWeights);
  visit("overlapRepair", overlapRepair);
  visit("importing", importing);
  visit("backups", backups);
  visit("health", health);
  visit("settings", settings);
  visit("undo", undo);
  visit("failure", failure);
  visit("screen", screen);
}

}  // namespace mivo::host
