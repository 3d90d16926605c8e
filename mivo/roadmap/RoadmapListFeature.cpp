// SPDX-License-Identifier: MIT
#include "mivo/roadmap/RoadmapListFeature.h"

#include <algorithm>
#include <exception>
#include <functional>
#include <utility>

#include "mivo/roadmap/JSONDataFetcher.h"

namespace mivo {
namespace {

using Action = RoadmapListFeature::Action;
using State = RoadmapListFeature::State;

/// Every order is as likely as any other, but for the last digits of a 64-bit number's remainder.
void shuffle(std::vector<RoadmapFeature>& features, const RandomNumberGenerator& random) {
  for (std::size_t left = features.size(); left > 1; --left)
    std::swap(features[left - 1], features[random.next() % left]);
}

std::vector<RoadmapFeature> inOrder(std::vector<RoadmapFeature> features, const RoadmapConfiguration& configuration,
                                    const RandomNumberGenerator& random) {
  if (configuration.shuffled) shuffle(features, random);
  if (configuration.sorting) std::ranges::stable_sort(features, configuration.sorting);
  return features;
}

// One that cannot be read is none: what is said then is that the other could not be loaded.
RoadmapFile shippedFile(const RoadmapConfiguration& configuration) {
  if (configuration.shippedRoadmap.empty()) return {};
  try {
    return RoadmapFile::decoded(dependency(&Dependencies::jsonDecoder)->decoded(configuration.shippedRoadmap));
  } catch (const DecodingError&) {
    return {};
  }
}

List<RoadmapRow> rowsOf(const std::vector<RoadmapFeature>& features, const RoadmapVotes& votes) {
  std::vector<RoadmapRow> rows;
  rows.reserve(features.size());
  for (const RoadmapFeature& feature : features)
    rows.push_back({.feature = feature, .isVoted = votes.isVoted(feature.id)});
  return rows;
}

const RoadmapRow* rowOf(const State& state, const std::string& id) {
  const auto row = std::ranges::find(*state.rows, id, [](const RoadmapRow& each) { return each.feature.id; });
  return row == state.rows->end() ? nullptr : row;
}

template <class Change>
void changeRow(State& state, const std::string& id, Change change) {
  auto rows = state.rows->elements();
  for (RoadmapRow& row : rows)
    if (row.feature.id == id) change(row);
  state.rows = List<RoadmapRow>{std::move(rows)};
}

}  // namespace

Effect<Action> RoadmapListFeature::reduce(State& state, const Action& action) const {
  if (std::holds_alternative<Action::onAppear>(action))
    return state.phase == RoadmapPhase::idle ? load(state) : Effect<Action>::none();
  if (std::holds_alternative<Action::didTapTryAgain>(action))
    return state.phase == RoadmapPhase::failed ? load(state) : Effect<Action>::none();
  if (const auto* tapped = std::get_if<Action::didTapVote>(&action)) return didTapVote(state, tapped->id);
  if (const auto* loaded = std::get_if<Action::didLoad>(&action)) return didLoad(state, *loaded);
  if (const auto* answer = std::get_if<Action::didReceiveVoteAnswer>(&action))
    return didReceiveVoteAnswer(state, answer->answer);
  if (const auto* tapped = std::get_if<Action::didTapStatus>(&action)) state.status = tapped->status;
  if (const auto* received = std::get_if<Action::didReceiveCount>(&action))
    changeRow(state, received->count.id, [received](RoadmapRow& row) {
      const bool isKnown = received->count.count != 0;  // it is 0 where nobody answered, too
      if (isKnown && !row.isSending && !row.hasOwnAnswer) row.count = received->count.count;
    });
  if (const auto* failed = std::get_if<Action::didFailToLoad>(&action)) {
    state.phase = RoadmapPhase::failed;
    state.failure = failed->failure.reason;
    state.rows = failed->failure.shipped;
  }
  return {};
}

Effect<Action> RoadmapListFeature::load(State& state) const {
  state.phase = RoadmapPhase::loading;
  state.failure = std::string{};
  state.unsentVote = std::nullopt;
  return Effect<Action>::run(
      [](const Send<Action>& send, StopToken stop, const RoadmapConfiguration& how, const RoadmapVotes& cast,
         const Client<RandomNumberGenerator>& generator, const std::string& language) {
        JSONDataFetcher::loadJSON<RoadmapFile>(
            how.request.value_or(how.roadmapJSONURL), std::move(stop),
            [send, how, cast, generator, language](const Answer<RoadmapFile>& answer) {
              const auto rows = [&](const RoadmapFile& file) {
                return rowsOf(inOrder(file.features(language), how, *generator), cast);
              };
              try {
                send(Action::didLoad{rows(answer.value())});
              } catch (const std::exception& error) {
                send(Action::didFailToLoad{{error.what(), rows(shippedFile(how))}});
              }
            });
      },
      configuration, votes, random, languageTag);
}

Effect<Action> RoadmapListFeature::didLoad(State& state, const Action::didLoad& loaded) const {
  state.phase = RoadmapPhase::loaded;
  state.rows = loaded.rows;
  Effect<Action> all;
  if (configuration.allowVotes)
    for (const RoadmapRow& row : *state.rows) all.add(fetchCount(row.feature));
  return all;
}

Effect<Action> RoadmapListFeature::fetchCount(const RoadmapFeature& feature) const {
  return Effect<Action>::run(
      [](const Send<Action>& send, StopToken stop, const Client<FeatureVoter>& voter, const RoadmapFeature& asked) {
        voter->fetch(asked, std::move(stop),
                     [send, id = asked.id](std::int64_t count) { send(Action::didReceiveCount{{id, count}}); });
      },
      configuration.voter, feature);
}

Effect<Action> RoadmapListFeature::didTapVote(State& state, const std::string& id) const {
  const RoadmapRow* row = rowOf(state, id);
  if (!configuration.allowVotes || state.phase != RoadmapPhase::loaded || !row || row->isSending) return {};
  const bool isVote = !row->isVoted;
  if (voteRefusal(*row, isVote)) return {};
  const RoadmapFeature feature = row->feature;
  state.unsentVote = std::nullopt;
  changeRow(state, id, [isVote](RoadmapRow& tapped) {
    tapped.isVoted = isVote;
    tapped.count += isVote ? 1 : -1;
    tapped.isSending = true;
  });
  return Effect<Action>::run(
      [](const Send<Action>& send, StopToken, bool adds, const RoadmapFeature& voted, const RoadmapVotes& cast,
         const Client<FeatureVoter>& voter) {
        cast.send(adds, voted, *voter, [send, id = voted.id](std::optional<std::int64_t> count) {
          send(Action::didReceiveVoteAnswer{{id, count}});
        });
      },
      isVote, feature, votes, configuration.voter);
}

Effect<Action> RoadmapListFeature::didReceiveVoteAnswer(State& state, const RoadmapVoteAnswer& answer) const {
  const RoadmapRow* row = rowOf(state, answer.id);
  if (!row) return {};
  const RoadmapFeature feature = row->feature;
  changeRow(state, answer.id, [&answer](RoadmapRow& sent) {
    sent.isSending = false;
    sent.hasOwnAnswer = answer.count.has_value();
    if (!answer.count) sent.isVoted = !sent.isVoted;
    sent.count = answer.count.value_or(sent.count + (sent.isVoted ? 1 : -1));
  });
  if (answer.count) return {};
  state.unsentVote = answer.id;
  return fetchCount(feature);
}

void sortByVotes(std::vector<RoadmapRow>& rows) { std::ranges::stable_sort(rows, std::greater{}, &RoadmapRow::count); }

std::optional<VoteRefusal> voteRefusal(const RoadmapRow& row, bool isVote) {
  if (!isOpenForVotes(row.feature)) return VoteRefusal::closed;
  if (row.isVoted == isVote) return isVote ? VoteRefusal::votedAlready : VoteRefusal::notVoted;
  return std::nullopt;
}

std::string refusalText(VoteRefusal refusal, const RoadmapFeature& feature, const TextLookup& texts) {
  switch (refusal) {
    case VoteRefusal::closed:
      return filledIn(texts.text("{1} is finished: votes for it are closed."), {feature.title});
    case VoteRefusal::votedAlready:
      return filledIn(texts.text("You already voted for {1}."), {feature.title});
    case VoteRefusal::notVoted:
      return filledIn(texts.text("You have no vote for {1}."), {feature.title});
  }
  return {};
}

std::vector<RoadmapRow> visibleRows(const State& state) {
  std::vector<RoadmapRow> rows;
  for (const RoadmapRow& row : *state.rows)
    if (!state.status.value() || row.feature.status == *state.status.value()) rows.push_back(row);
  return rows;
}

std::vector<std::string> statuses(const State& state) {
  std::vector<std::string> found;
  for (const RoadmapRow& row : *state.rows)
    if (!row.feature.status.empty()) found.push_back(row.feature.status);
  std::ranges::sort(found, {}, [](const std::string& status) { return std::pair{statusRank(status), status}; });
  const auto repeated = std::ranges::unique(found);
  found.erase(repeated.begin(), repeated.end());
  return found;
}

}  // namespace mivo
