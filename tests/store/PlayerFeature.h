// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <variant>

#include "mivo/model/Record.h"
#include "mivo/model/TimeRange.h"
#include "mivo/store/Action.h"
#include "mivo/store/Effect.h"
#include "mivo/store/List.h"
#include "mivo/store/Presentation.h"
#include "mivo/store/Reducers.h"

// A feature with everything a feature can have, small enough to follow: a music player with a volume, a queue of songs,
// and one of two screens on top. Every reducer adds its letter to `order`.
namespace mivo::player {

struct VolumeFeature {
  struct State {
    Observed<int> volume;
    bool operator==(const State&) const = default;
  };
  struct Cases {
    struct didTapLouder {
      bool operator==(const didTapLouder&) const = default;
    };
    struct didMeasure {
      int volume;
      bool operator==(const didMeasure&) const = default;
    };
  };
  struct Action : Cases, std::variant<Cases::didTapLouder, Cases::didMeasure> {
    using variant::variant;
  };

  Effect<Action> reduce(State& state, const Action& action) const {
    if (const auto* measured = std::get_if<Action::didMeasure>(&action)) {
      state.volume = measured->volume;
      return {};
    }
    state.volume = state.volume + 1;
    return Effect<Action>::run(
        [](const Send<Action>& send, StopToken, int volume) { send(Action::didMeasure{volume * 10}); },
        state.volume.value());
  }
};

template <RecordOf<VolumeFeature::State> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [volume] = record;
  visit("volume", volume);
}

/// A screen that asks for the text of a song and shows it.
struct LyricsFeature {
  struct State {
    Observed<std::string> text;
    bool operator==(const State&) const = default;
  };
  struct Cases {
    struct onAppear {
      bool operator==(const onAppear&) const = default;
    };
    struct didLoad {
      std::string text;
      bool operator==(const didLoad&) const = default;
    };
  };
  struct Action : Cases, std::variant<Cases::onAppear, Cases::didLoad> {
    using variant::variant;
  };

  Effect<Action> reduce(State& state, const Action& action) const {
    if (const auto* loaded = std::get_if<Action::didLoad>(&action)) {
      state.text = loaded->text;
      return {};
    }
    return Effect<Action>::run([](const Send<Action>& send, StopToken) { send(Action::didLoad{"la la"}); });
  }
};

template <RecordOf<LyricsFeature::State> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [text] = record;
  visit("text", text);
}

struct CreditsFeature : EmptyReducer {
  struct State {
    bool operator==(const State&) const = default;
  };
  struct Action {
    Action() = delete;
    bool operator==(const Action&) const = default;
  };
};

struct Destination {
  struct StateCases {
    struct lyrics {
      LyricsFeature::State state;
      bool operator==(const lyrics&) const = default;
    };
    struct credits {
      CreditsFeature::State state;
      bool operator==(const credits&) const = default;
    };
  };
  struct State : StateCases, std::variant<StateCases::lyrics, StateCases::credits> {
    using variant::variant;
  };
  struct Cases {
    struct lyrics {
      LyricsFeature::Action action;
      bool operator==(const lyrics&) const = default;
    };
    struct credits {
      CreditsFeature::Action action;
      bool operator==(const credits&) const = default;
    };
  };
  struct Action : Cases, std::variant<Cases::lyrics, Cases::credits> {
    using variant::variant;
  };

  Effect<Action> reduce(State& state, const Action& action) const {
    return combine(whenCase<State::lyrics, Action::lyrics>(LyricsFeature{}),
                   whenCase<State::credits, Action::credits>(CreditsFeature{}))(state, action);
  }
};

struct PlayerFeature {
  struct State {
    Presentation<Destination::State> destination;
    Observed<TimeRange> timeRange = TimeRange::week;
    Observed<List<std::string>> songs = List<std::string>{};
    VolumeFeature::State volume{.volume = 0};
    std::string order;
    bool operator==(const State&) const = default;
  };
  struct Cases {
    struct binding {
      Binding<&State::timeRange> action;
      bool operator==(const binding&) const = default;
    };
    struct volume {
      VolumeFeature::Action action;
      bool operator==(const volume&) const = default;
    };
    struct destination {
      PresentationAction<Destination::Action> action;
      bool operator==(const destination&) const = default;
    };
    struct didTapLyrics {
      bool operator==(const didTapLyrics&) const = default;
    };
    struct didTapCredits {
      bool operator==(const didTapCredits&) const = default;
    };
    struct didTapBack {
      bool operator==(const didTapBack&) const = default;
    };
    struct setSongs {
      List<std::string> songs;
      bool operator==(const setSongs&) const = default;
    };
    struct loadBoth {
      bool operator==(const loadBoth&) const = default;
    };
  };
  struct Action : Cases,
                  std::variant<Cases::binding, Cases::volume, Cases::destination, Cases::didTapLyrics,
                               Cases::didTapCredits, Cases::didTapBack, Cases::setSongs, Cases::loadBoth> {
    using variant::variant;
  };

  Effect<Action> reduce(State& state, const Action& action) const;
  Effect<Action> core(State& state, const Action& action) const;

  VolumeFeature volume;
  Destination destinations;
};

template <RecordOf<PlayerFeature::State> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [destination, timeRange, songs, volume, order] = record;
  visit("destination", destination);
  visit("timeRange", timeRange);
  visit("songs", songs);
  visit("volume", volume);
  visit("order", order);
}

inline PlayerFeature::Action lyricsAction(LyricsFeature::Action action) {
  using Sent = PresentationAction<Destination::Action>;
  return PlayerFeature::Action::destination{Sent{Sent::presented{Destination::Action::lyrics{std::move(action)}}}};
}

inline PlayerFeature::Action dismissal() {
  return PlayerFeature::Action::destination{PresentationAction<Destination::Action>::dismiss{}};
}

}  // namespace mivo::player
