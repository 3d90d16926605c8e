// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "host/data/DataFiles.h"
#include "host/fasting/HistoryClient.h"
#include "mivo/platform/Client.h"
#include "mivo/platform/DateGenerator.h"
#include "mivo/platform/TextLookup.h"
#include "mivo/store/Action.h"
#include "mivo/store/Effect.h"
#include "mivo/store/List.h"
#include "mivo/store/Observed.h"

namespace mivo::host {

/// The backups of the history: listed, made, and one of them chosen to go back to; and the folder that they go to.
/// Going back is for whoever keeps the history.
struct BackupsFeature {
  /// What became of a backup that was asked for.
  enum class Outcome { made, unchanged, nothingThere };

  struct State {
    Observed<BackupPlace> place = BackupPlace{};                                   ///< as it was when they were listed
    Observed<List<ListedBackup>> backups = List<ListedBackup>{};                   ///< the newest first
    Observed<bool> isWorking = false;                                              ///< makes one, or moves on
    Observed<std::optional<ListedBackup>> chosen = std::optional<ListedBackup>{};  ///< to go back to
    Observed<bool> isRestoring = false;
    Observed<std::string> failure = std::string{};  ///< of going back, while one is chosen
    bool operator==(const State&) const = default;
  };

  struct Cases {
    /// Their dates alone, which costs next to nothing, or what they hold as well.
    struct list {
      bool areCounted;
      bool operator==(const list&) const = default;
    };
    struct didList {
      BackupPlace place;
      std::vector<ListedBackup> backups;
      bool operator==(const didList&) const = default;
    };
    struct didTapBackUp {
      bool operator==(const didTapBackUp&) const = default;
    };
    struct didBackUp {
      Outcome outcome;
      bool operator==(const didBackUp&) const = default;
    };
    /// Empty for the usual one.
    struct didChooseFolder {
      std::string path;
      bool operator==(const didChooseFolder&) const = default;
    };
    struct didMove {
      std::string sentence;  ///< for the user: where to
      bool operator==(const didMove&) const = default;
    };
    struct didFail {
      std::string sentence;
      bool operator==(const didFail&) const = default;
    };
    /// One that can be read.
    struct didChoose {
      std::size_t row;
      bool operator==(const didChoose&) const = default;
    };
    struct didDismiss {
      bool operator==(const didDismiss&) const = default;
    };
    /// For whoever keeps the history.
    struct didTapRestore {
      bool operator==(const didTapRestore&) const = default;
    };
  };
  struct Action
      : Cases,
        std::variant<Cases::list, Cases::didList, Cases::didTapBackUp, Cases::didBackUp, Cases::didChooseFolder,
                     Cases::didMove, Cases::didFail, Cases::didChoose, Cases::didDismiss, Cases::didTapRestore> {
    using variant::variant;
  };

  Client<DataFiles> files;
  Client<HistoryClient> history;
  Client<TextLookup> texts;
  Client<DateGenerator> date;

  Effect<Action> reduce(State& state, const Action& action) const;

 private:
  Effect<Action> on(State& state, const Action::list& sent) const;
  Effect<Action> on(State& state, const Action::didList& sent) const;
  Effect<Action> on(State& state, const Action::didTapBackUp& sent) const;
  Effect<Action> on(State& state, const Action::didBackUp& sent) const;
  Effect<Action> on(State& state, const Action::didChooseFolder& sent) const;
  Effect<Action> on(State& state, const Action::didMove& sent) const;
  Effect<Action> on(State& state, const Action::didFail& sent) const;
  Effect<Action> on(State& state, const Action::didChoose& sent) const;
  Effect<Action> on(State& state, const Action::didDismiss& sent) const;
  Effect<Action> on(State& state, const Action::didTapRestore& sent) const;
};

template <RecordOf<BackupsFeature::State> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [place, backups, isWorking, chosen, isRestoring, failure] = record;
  visit("place", place);
  visit("backups", backups);
  visit("isWorking", isWorking);
  visit("chosen", chosen);
  visit("isRestoring", isRestoring);
  visit("failure", failure);
}

}  // namespace mivo::host
