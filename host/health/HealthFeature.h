// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>

#include "host/data/DataFiles.h"
#include "host/fasting/HistoryClient.h"
#include "host/health/LinkedHealthClient.h"
#include "host/health/ReadLinkedHealth.h"
#include "mivo/platform/Client.h"
#include "mivo/platform/TextLookup.h"
#include "mivo/store/Action.h"
#include "mivo/store/Effect.h"
#include "mivo/store/Observed.h"
#include "mivo/store/Presentation.h"

namespace mivo::host {

/// The linked health export: chosen, let go, and read whenever the statistics appear and it has changed. Reading ends
/// once the file is unlinked or another one is linked; what was read is written whatever happens meanwhile. What cannot
/// be read leaves all weights as they are, and is tried again the next time.
struct HealthFeature {
  struct Reading {
    Observed<double> progress = 0.0;  ///< 0 to 1
    bool operator==(const Reading&) const = default;
  };

  struct State {
    Observed<bool> isOffered = false;
    Observed<std::string> file = std::string{};  ///< its path; empty where none is linked
    Presentation<Reading> reading = {};
    Observed<bool> isWriting = false;
    Observed<std::string> fault = std::string{};   ///< one sentence: why it could not be read; empty once it was
    Observed<std::string> notice = std::string{};  ///< of what was read last, as `noticeText` says it
    bool operator==(const State&) const = default;
  };

  struct Cases {
    /// Looks whether the file has changed.
    struct onAppear {
      bool operator==(const onAppear&) const = default;
    };
    struct didLink {
      std::string path;
      bool operator==(const didLink&) const = default;
    };
    /// The weights that it brought stay.
    struct didUnlink {
      bool operator==(const didUnlink&) const = default;
    };
    struct didProgress {
      double fraction;
      bool operator==(const didProgress&) const = default;
    };
    struct didFindUnchanged {
      bool operator==(const didFindUnchanged&) const = default;
    };
    struct didRead {
      std::shared_ptr<const LinkedHealth> read;
      bool operator==(const didRead&) const = default;
    };
    /// For whoever keeps the history: it has that many more weights.
    struct didSync {
      std::string path;
      std::int64_t added;
      bool operator==(const didSync&) const = default;
    };
    struct didFail {
      std::string sentence;
      bool operator==(const didFail&) const = default;
    };
  };
  struct Action : Cases,
                  std::variant<Cases::onAppear, Cases::didLink, Cases::didUnlink, Cases::didProgress,
                               Cases::didFindUnchanged, Cases::didRead, Cases::didSync, Cases::didFail> {
    using variant::variant;
  };

  Client<LinkedHealthClient> health;  ///< none: nothing happens
  Client<DataFiles> files;
  Client<HistoryClient> history;
  Client<TextLookup> texts;

  Effect<Action> reduce(State& state, const Action& action) const;

 private:
  Effect<Action> on(State& state, const Action::onAppear& sent) const;
  Effect<Action> on(State& state, const Action::didLink& sent) const;
  Effect<Action> on(State& state, const Action::didUnlink& sent) const;
  Effect<Action> on(State& state, const Action::didProgress& sent) const;
  Effect<Action> on(State& state, const Action::didFindUnchanged& sent) const;
  Effect<Action> on(State& state, const Action::didRead& sent) const;
  Effect<Action> on(State& state, const Action::didSync& sent) const;
  Effect<Action> on(State& state, const Action::didFail& sent) const;
};

template <RecordOf<HealthFeature::Reading> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [progress] = record;
  visit("progress", progress);
}

template <RecordOf<HealthFeature::State> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [isOffered, file, reading, isWriting, fault, notice] = record;
  visit("isOffered", isOffered);
  visit("file", file);
  visit("reading", reading);
  visit("isWriting", isWriting);
  visit("fault", fault);
  visit("notice", notice);
}

}  // namespace mivo::host
