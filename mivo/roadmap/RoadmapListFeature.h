// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "mivo/platform/Dependencies.h"
#include "mivo/roadmap/RoadmapFeature.h"
#include "mivo/roadmap/RoadmapFeedbackView.h"
#include "mivo/roadmap/RoadmapVotes.h"
#include "mivo/store/Effect.h"
#include "mivo/store/List.h"
#include "mivo/store/Observed.h"

namespace mivo {

/// A row of the roadmap's list.
struct RoadmapRow {
  RoadmapFeature feature;
  std::int64_t count = 0;  ///< 0 also while it is not known
  bool isVoted = false;
  bool isSending = false;     ///< a vote is under way: another tap is ignored
  bool hasOwnAnswer = false;  ///< a vote of this user told the count, so one that was fetched before is old
  bool operator==(const RoadmapRow&) const = default;
};

template <RecordOf<RoadmapRow> Record, class Visit>
void fields(Record& record, Visit&& visit) {
  auto& [feature, count, isVoted, isSending, hasOwnAnswer] = record;
  visit("feature", feature);
  visit("count", count);
  visit("isVoted", isVoted);
  visit("isSending", isSending);
  visit("hasOwnAnswer", hasOwnAnswer);
}

/// The votes for a feature.
struct RoadmapCount {
  std::string id;
  std::int64_t count = 0;
  bool operator==(const RoadmapCount&) const = default;
};

template <RecordOf<RoadmapCount> Record, class Visit>
void fields(Record& record, Visit&& visit) {
  auto& [id, count] = record;
  visit("id", id);
  visit("count", count);
}

/// The votes for a feature after a vote of this user; nothing where that did not get through.
struct RoadmapVoteAnswer {
  std::string id;
  std::optional<std::int64_t> count;
  bool operator==(const RoadmapVoteAnswer&) const = default;
};

template <RecordOf<RoadmapVoteAnswer> Record, class Visit>
void fields(Record& record, Visit&& visit) {
  auto& [id, count] = record;
  visit("id", id);
  visit("count", count);
}

/// Why the roadmap could not be loaded, and what is shown instead.
struct RoadmapFailure {
  std::string reason;
  List<RoadmapRow> shipped = {};  ///< what came with the app
  bool operator==(const RoadmapFailure&) const = default;
};

template <RecordOf<RoadmapFailure> Record, class Visit>
void fields(Record& record, Visit&& visit) {
  auto& [reason, shipped] = record;
  visit("reason", reason);
  visit("shipped", shipped);
}

/// Where loading has failed the rows are those that came with the app, or none.
enum class RoadmapPhase { idle, loading, loaded, failed };

/// The roadmap component: loads the file, fetches the counts, and lets the user vote. A vote is shown at once and
/// corrected by the service's answer; one that does not get through is taken back and said.
struct RoadmapListFeature {
  struct State {
    Observed<RoadmapPhase> phase = RoadmapPhase::idle;
    Observed<std::string> failure = std::string{};  ///< why loading failed, for a log
    Observed<List<RoadmapRow>> rows = List<RoadmapRow>{};
    Observed<std::optional<std::string>> status = std::nullopt;      ///< only features of that status; all without one
    Observed<std::optional<std::string>> unsentVote = std::nullopt;  ///< the feature whose vote did not get through
    bool operator==(const State&) const = default;
  };

  struct Cases {
    struct onAppear {
      bool operator==(const onAppear&) const = default;
    };
    struct didTapTryAgain {
      bool operator==(const didTapTryAgain&) const = default;
    };
    struct didTapStatus {
      std::optional<std::string> status;
      bool operator==(const didTapStatus&) const = default;
    };
    /// Votes, or takes the vote back.
    struct didTapVote {
      std::string id;
      bool operator==(const didTapVote&) const = default;
    };
    struct didLoad {
      List<RoadmapRow> rows;
      bool operator==(const didLoad&) const = default;
    };
    struct didFailToLoad {
      RoadmapFailure failure;
      bool operator==(const didFailToLoad&) const = default;
    };
    struct didReceiveCount {
      RoadmapCount count;
      bool operator==(const didReceiveCount&) const = default;
    };
    struct didReceiveVoteAnswer {
      RoadmapVoteAnswer answer;
      bool operator==(const didReceiveVoteAnswer&) const = default;
    };
  };
  struct Action
      : Cases,
        std::variant<Cases::onAppear, Cases::didTapTryAgain, Cases::didTapStatus, Cases::didTapVote, Cases::didLoad,
                     Cases::didFailToLoad, Cases::didReceiveCount, Cases::didReceiveVoteAnswer> {
    using variant::variant;
  };

  Effect<Action> reduce(State& state, const Action& action) const;

  RoadmapConfiguration configuration = RoadmapFeedbackView::configuration();
  RoadmapVotes votes = {dependency(&Dependencies::userDefaults), configuration.namespaceName.value_or("roadmap")};
  Client<RandomNumberGenerator> random = dependency(&Dependencies::random);
  std::string languageTag = currentDependencies().languageTag;

 private:
  Effect<Action> load(State& state) const;
  Effect<Action> fetchCount(const RoadmapFeature& feature) const;
  Effect<Action> didLoad(State& state, const Action::didLoad& loaded) const;
  Effect<Action> didTapVote(State& state, const std::string& id) const;
  Effect<Action> didReceiveVoteAnswer(State& state, const RoadmapVoteAnswer& answer) const;
};

template <RecordOf<RoadmapListFeature::State> Record, class Visit>
void fields(Record& record, Visit&& visit) {
  auto& [phase, failure, rows, status, unsentVote] = record;
  visit("phase", phase);
  visit("failure", failure);
  visit("rows", rows);
  visit("status", status);
  visit("unsentVote", unsentVote);
}

/// The most wanted first; those of as many votes keep their order.
void sortByVotes(std::vector<RoadmapRow>& rows);

/// Why a vote for a feature, or taking one back, would be pointless.
enum class VoteRefusal { closed, votedAlready, notVoted };
std::optional<VoteRefusal> voteRefusal(const RoadmapRow& row, bool isVote);

/// "You already voted for Water log."
std::string refusalText(VoteRefusal refusal, const RoadmapFeature& feature, const TextLookup& texts);

/// The rows that the chosen status leaves.
std::vector<RoadmapRow> visibleRows(const RoadmapListFeature::State& state);

/// The statuses to choose from: planned, in progress, finished, then others by name; only those that a feature has.
std::vector<std::string> statuses(const RoadmapListFeature::State& state);

/// What the screen says where the list is not there, and where a vote did not get through.
struct RoadmapTexts {
  static constexpr std::string_view title = translatable("Roadmap");
  static constexpr std::string_view allStatuses = translatable("All");
  static constexpr std::string_view couldNotBeLoaded = translatable("The roadmap could not be loaded.");
  static constexpr std::string_view checkConnection = translatable("Check the connection and try again.");
  static constexpr std::string_view votesNotLoaded = translatable("The votes could not be loaded.");
  static constexpr std::string_view shownAsShipped =
      translatable("This is the roadmap that came with Mivo. Check the connection to see the votes, and to vote.");
  static constexpr std::string_view tryAgain = translatable("Try again");
  static constexpr std::string_view voteNotSent = translatable("Your vote could not be sent. Please try again later.");
  static constexpr std::string_view isEmpty = translatable("Nothing is planned at the moment.");
};

}  // namespace mivo
