// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "host/data/DataFiles.h"
#include "host/fasting/HistoryClient.h"
#include "mivo/platform/Client.h"
#include "mivo/platform/TextLookup.h"
#include "mivo/store/Action.h"
#include "mivo/store/Effect.h"
#include "mivo/store/List.h"
#include "mivo/store/Observed.h"

namespace mivo::host {

/// What some files or typed lines hold, held against the history.
struct ImportPreview {
  std::vector<ImportedFile> files;
  ImportPlan plan;
};

/// Files that are brought along: chosen, read, looked at. Writing them is for whoever presents this. What is read is
/// dropped, and the reading ends, once it is no longer presented. Typed fasts are read by whoever presents this, too.
struct ImportFeature {
  enum class Phase { choosing, reading, refused, ready, writing };

  struct State {
    Observed<bool> isTyped = false;  ///< lines that somebody types, and no files
    Observed<Phase> phase = Phase::choosing;
    Observed<List<std::string>> paths = List<std::string>{};
    Observed<double> progress = 0.0;  ///< 0 to 1 of reading
    Observed<ImportAnswers> answers = ImportAnswers{};
    Observed<std::optional<ImportFault>> fault = std::optional<ImportFault>{};  ///< while refused
    Observed<std::string> failure = std::string{};                              ///< one sentence: why nothing was done
    Observed<std::shared_ptr<const ImportPreview>> preview = std::shared_ptr<const ImportPreview>{};  ///< from ready on
    bool operator==(const State&) const = default;
  };

  struct Cases {
    /// Of those that were chosen before nothing is read any more.
    struct didChooseFiles {
      std::vector<std::string> paths;
      bool operator==(const didChooseFiles&) const = default;
    };
    struct didProgress {
      double fraction;
      bool operator==(const didProgress&) const = default;
    };
    struct didRead {
      std::shared_ptr<const ImportPreview> preview;
      bool operator==(const didRead&) const = default;
    };
    struct didRefuse {
      ImportFault fault;
      bool operator==(const didRefuse&) const = default;
    };
    struct didFail {
      std::string sentence;
      bool operator==(const didFail&) const = default;
    };
    /// To what the fault asks, by the place of the answer: see `importAnswers`.
    struct didAnswer {
      std::size_t place;
      bool operator==(const didAnswer&) const = default;
    };
    /// What is ready is to be written: for whoever presents this.
    struct didTapImport {
      bool operator==(const didTapImport&) const = default;
    };
  };
  struct Action : Cases,
                  std::variant<Cases::didChooseFiles, Cases::didProgress, Cases::didRead, Cases::didRefuse,
                               Cases::didFail, Cases::didAnswer, Cases::didTapImport> {
    using variant::variant;
  };

  Client<DataFiles> files;
  Client<HistoryClient> history;
  Client<TextLookup> texts;

  Effect<Action> reduce(State& state, const Action& action) const;

 private:
  Effect<Action> on(State& state, const Action::didChooseFiles& sent) const;
  Effect<Action> on(State& state, const Action::didProgress& sent) const;
  Effect<Action> on(State& state, const Action::didRead& sent) const;
  Effect<Action> on(State& state, const Action::didRefuse& sent) const;
  Effect<Action> on(State& state, const Action::didFail& sent) const;
  Effect<Action> on(State& state, const Action::didAnswer& sent) const;
  Effect<Action> on(State& state, const Action::didTapImport& sent) const;
  Effect<Action> read(State& state) const;
};

/// The answers that there are to what a fault asks, in the order in which they are offered; none where it asks nothing.
std::vector<ImportAnswers> importAnswers(ImportFault::Asks asks);

template <RecordOf<ImportFeature::State> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [isTyped, phase, paths, progress, answers, fault, failure, preview] = record;
  visit("isTyped", isTyped);
  visit("phase", phase);
  visit("paths", paths);
  visit("progress", progress);
  visit("answers", answers);
  visit("fault", fault);
  visit("failure", failure);
  visit("preview", preview);
}

}  // namespace mivo::host
