// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

#include "host/frontend/FrontendServices.h"
#include "host/frontend/PageSource.h"
#include "host/frontend/PersonActions.h"
#include "mivo/platform/Subscription.h"
#include "mivo/store/Store.h"

namespace mivo::host {

/// The app for a front-end that is not linked with it: what a person does comes in as JSON, and what is seen goes out
/// as JSON, page by page. `Pages.h` names the pages and lists, `PersonActions.h` the actions.
///
///     Frontend frontend{services};
///     const Subscription told = frontend.subscribe([](auto names) { ... });
///     frontend.page("fasting");                       // {"isRunning": false, ...
///     frontend.send(R"("didTapFastingButton")");      // tells of "fasting" once the fast is on disk
///     frontend.rows("historyRows", 0, 20);            // [{"date": "Tue 9 Jun", ...
///
/// A page is composed when it is asked for, and from then on whenever something that it reads was written; it is told
/// where it then says something else. Dates are seconds since 1970.
///
/// It reads no clock but the dependencies', starts no thread and opens no file. Thread: the main one; the dependencies
/// need not be in force.
class Frontend {
 public:
  /// Loads the history before it returns.
  explicit Frontend(FrontendServices services);
  Frontend(const Frontend&) = delete;
  Frontend& operator=(const Frontend&) = delete;

  /// What a person did; nothing, and a sentence for who writes pages, where it is malformed.
  tl::expected<void, std::string> send(std::string_view json);
  /// What the program itself has to tell: that it has started, that a file was chosen.
  void send(AppFeature::Action action);

  /// The page as JSON; "null" for a sheet that was not open yet. Nothing for a name that no page has.
  std::optional<std::string> page(std::string_view name);
  /// Those rows of a list that there are, as a JSON array. Nothing for a name that no list has.
  std::optional<std::string> rows(std::string_view name, std::size_t first, std::size_t count);

  /// Calls back with the names of the pages and lists that read differently, each once; of those that were asked for.
  Subscription subscribe(std::function<void(std::span<const std::string_view>)> told) {
    return observers.add(std::move(told));
  }

  /// Whether anybody can see the pages; while nobody can, only the minutes go on.
  void setWatched(bool isNow);
  /// How long to wait before `tick`, in seconds: the clock's next minute, or the next second where seconds are seen.
  double untilNextTick() const;
  /// Time has passed.
  void tick();
  /// Another program may have written, and the system's time zone, whose name this is, may have become another one.
  void lookAround(const std::optional<std::string>& newZone = {});

  const AppFeature::State& state() const { return store.state(); }

 private:
  using Done = tl::expected<void, std::string>;

  /// A page or a list that was asked for.
  struct Asked {
    std::string_view name;
    void (*read)(const PageSource&, std::vector<Stamp>&);
    std::optional<std::string> (*compose)(const PageSource&);  ///< none of a list
    std::optional<std::vector<Stamp>> stamps = {};
    std::string text = "null";

    /// Whether it reads differently than before.
    bool follow(const PageSource& from);
  };

  void follow();
  void followRoadmap();
  void tellTips();
  Asked* asked(std::string_view name);

  Done take(AppFeature::Action action);
  Done take(const PageAction::Action& action);
  Done on(const PageAction::Cases::didTapFastingButton& sent);
  Done on(const PageAction::Cases::didTapFast& sent);
  Done on(const PageAction::Cases::didDeleteFastOfRow& sent);
  Done on(const PageAction::Cases::didDeleteEditedFast& sent);
  Done on(const PageAction::Cases::didTapWeight& sent);
  Done on(const PageAction::Cases::didDeleteWeightOfRow& sent);
  Done on(const PageAction::Cases::didDeleteEditedWeight& sent);
  Done on(const PageAction::Cases::didChooseTimeRange& sent);
  Done on(const PageAction::Cases::didDismissTip& sent);
  Done on(const PageAction::Cases::didSeeFastingBars& sent);
  Done on(const PageAction::Cases::didSeeEatingBars& sent);
  Done on(const PageAction::Cases::weightChart& sent);
  Done on(const PageAction::Cases::weightFastingChart& sent);
  Done on(const PageAction::Cases::goalChoice& sent);
  Done on(const PageAction::Cases::dateChoice& sent);
  Done on(const PageAction::Cases::roadmap& sent);
  Done on(const PageAction::Cases::didTypeIdea& sent);
  Done on(const PageAction::Cases::didFindNoMailProgram& sent);
  Done on(const PageAction::Cases::didTellReminder& sent);
  Done on(const PageAction::Cases::didExportRow& sent);
  Done on(const PageAction::Cases::didChooseWeightUnit& sent);
  Done on(const PageAction::Cases::didChooseFirstWeekday& sent);
  Done on(const PageAction::Cases::didChooseLanguage& sent);
  Done on(const PageAction::Cases::didChooseAppearance& sent);
  Done on(const PageAction::Cases::didChooseTextSize& sent);
  Done on(const PageAction::Cases::didToggleCard& sent);
  Done on(const PageAction::Cases::didChooseCounted& sent);
  Done on(const PageAction::Cases::didChooseLongestBreak& sent);
  Done on(const PageAction::Cases::didChooseEatingWindow& sent);
  Done sent(AppFeature::Action action);
  Done chosen(SettingsFeature::Action action);

  FrontendServices services;
  Store<AppFeature> store;
  PageSource source;
  std::vector<Asked> known;
  std::vector<Stamp> seen;
  bool isWatched = true, isTaking = false;
  Observers<std::span<const std::string_view>> observers;
  Subscription following, followingRoadmap;
};

}  // namespace mivo::host
