// SPDX-License-Identifier: MIT
#include "host/frontend/Frontend.h"

#include <algorithm>
#include <array>
#include <utility>

#include "host/app/CurrentTipFacts.h"
#include "host/fasting/Fasting.h"
#include "host/frontend/ActionJson.h"
#include "host/frontend/Pages.h"
#include "host/json/RecordJson.h"

namespace mivo::host {
namespace {

using Action = AppFeature::Action;

Store<AppFeature> storeOf(const FrontendServices& services) {
  const DependencyScope scope{services.dependencies};
  return Store<AppFeature>{
      AppFeature::State::make(services.timeRange, services.usualWeightUnit),
      AppFeature{.history = services.history,
                 .files = services.files,
                 .linkedHealth = services.health,
                 .chooseFirstWeekday = [week = services.calendar](auto weekday) { week->choose(weekday); },
                 .keepReminding = services.keepReminding},
      services.dependencies->mainQueue, services.dependencies->taskRunner};
}

/// Keeps a flag up, and lets it down whatever is thrown meanwhile.
class WhileTrue {
 public:
  explicit WhileTrue(bool& kept) : flag(kept) { flag = true; }
  ~WhileTrue() { flag = false; }
  WhileTrue(const WhileTrue&) = delete;
  WhileTrue& operator=(const WhileTrue&) = delete;

 private:
  bool& flag;
};

template <class Value>
std::string jsonOf(const Value& value) {
  JsonWriter json{JsonWriter::Reader::page};
  writeJson(json, value);
  return std::move(json).text();
}

template <std::size_t place>
std::optional<std::string> composedPage(const PageSource& source) {
  const auto page = std::get<place>(pages).compose(source);
  return page ? std::optional{jsonOf(*page)} : std::nullopt;
}

template <class Row>
std::string composedRows(const PageList<Row>& list, const PageSource& source, std::size_t first, std::size_t count) {
  const std::size_t all = list.count(source);
  JsonWriter json{JsonWriter::Reader::page};
  json.beginArray(JsonWriter::Layout::line);
  for (std::size_t place = first; place < all && place - first < count; ++place)
    writeJson(json, list.row(source, place));
  json.endArray();
  return std::move(json).text();
}

/// Calls `visit` with the entry of a table that has the name, and its place.
template <class Table, class Visit>
void visitNamed(const Table& table, std::string_view name, const Visit& visit) {
  const auto visitIfNamed = [&]<std::size_t place>(std::integral_constant<std::size_t, place> at) {
    if (std::get<place>(table).name == name) visit(std::get<place>(table), at);
  };
  [&]<std::size_t... place>(std::index_sequence<place...>) {
    (visitIfNamed(std::integral_constant<std::size_t, place>{}), ...);
  }(std::make_index_sequence<std::tuple_size_v<Table>>{});
}

}  // namespace

Frontend::Frontend(FrontendServices given)
    : services{std::move(given)}, store{storeOf(services)}, source{services, store.state(), [this] {
                                                                     const DependencyScope scope{services.dependencies};
                                                                     follow();
                                                                   }} {
  following = store.observe([this](const AppFeature::State&) { follow(); });
  send(Action::load{});
}

tl::expected<void, std::string> Frontend::send(std::string_view json) {
  auto action = readAction(json);
  if (!action) return tl::unexpected{std::move(action.error())};
  const DependencyScope scope{services.dependencies};
  Done done;
  {
    const WhileTrue taking{isTaking};
    done = std::visit([this](auto& one) { return take(std::move(one)); }, *action);
  }
  follow();
  return done;
}

void Frontend::send(Action action) {
  const DependencyScope scope{services.dependencies};
  store.send(std::move(action));
}

std::optional<std::string> Frontend::page(std::string_view name) {
  const DependencyScope scope{services.dependencies};
  if (!asked(name))
    visitNamed(pages, name, [this]<std::size_t place>(const auto& page, std::integral_constant<std::size_t, place>) {
      known.push_back({page.name, page.read, composedPage<place>});
    });
  Asked* const wanted = asked(name);
  if (!wanted || !wanted->compose) return std::nullopt;
  wanted->follow(source);
  return wanted->text;
}

std::optional<std::string> Frontend::rows(std::string_view name, std::size_t first, std::size_t count) {
  const DependencyScope scope{services.dependencies};
  std::optional<std::string> composed;
  visitNamed(lists, name, [&](const auto& list, auto) {
    if (!asked(name)) known.push_back({list.name, list.read, nullptr});
    asked(name)->follow(source);
    composed = composedRows(list, source, first, count);
  });
  return composed;
}

void Frontend::setWatched(bool isNow) {
  if (std::exchange(isWatched, isNow) == isNow || !isNow) return;
  lookAround();
  send(Action::statistics{StatisticsFeature::Action::onAppear{}});
}

// The minutes from what was computed: a clock read anew may be past one that the statistics have not seen.
double Frontend::untilNextTick() const {
  const DependencyScope scope{services.dependencies};
  const Date computed = state().now, now = source.clients().now;
  const double minute = std::max(0.0, untilNextMinute(computed) - secondsBetween(computed, now));
  const bool seesSeconds = isWatched && tabOf(openScreen(state())) == Screen::fasting;
  const auto second = host::untilNextTick(source.fasting(), seesSeconds, now);
  return std::min(minute, second.value_or(minute));
}

void Frontend::tick() {
  const DependencyScope scope{services.dependencies};
  const Date computed = state().now;
  {
    const WhileTrue taking{isTaking};
    source.tick = nextStamp();
    if (secondsBetween(computed, source.clients().now) >= untilNextMinute(computed)) {
      if (!isWatched) store.send(Action::lookForChanges{});
      store.send(Action::recompute{});
    }
  }
  follow();
}

void Frontend::lookAround(const std::optional<std::string>& newZone) {
  if (newZone) source.retell();
  send(Action::lookForChanges{});
  if (newZone) send(Action::didChangeZone{*newZone});
}

void Frontend::follow() {
  if (isTaking) return;
  {
    const WhileTrue taking{isTaking};
    followRoadmap();
  }
  tellTips();
  std::vector<std::string_view> told;
  for (Asked& one : known)
    if (one.follow(source)) told.push_back(one.name);
  if (!told.empty()) observers.notify(told);
}

bool Frontend::Asked::follow(const PageSource& from) {
  std::vector<Stamp> now;
  read(from, now);
  const bool isFirst = !stamps;
  if (stamps == now) return false;
  stamps = std::move(now);
  if (!compose) return !isFirst;
  auto composed = compose(from);
  return composed && std::exchange(text, *composed) != *composed;
}

void Frontend::followRoadmap() {
  const bool isOpen = standsOn(openScreen(state()), Screen::roadmap);
  if (isOpen == (source.roadmap != nullptr)) return;
  source.roadmap.reset();
  if (!isOpen) return;
  source.roadmap =
      std::make_unique<Store<RoadmapListFeature>>(RoadmapListFeature::State{}, RoadmapListFeature{},
                                                  source.dependencies().mainQueue, source.dependencies().taskRunner);
  followingRoadmap = source.roadmap->observe([this](const RoadmapListFeature::State&) { follow(); });
  source.roadmap->send(RoadmapListFeature::Action::onAppear{});
}

void Frontend::tellTips() {
  if (auto stamps = stampsOf(state()); std::exchange(seen, stamps) == stamps) return;
  services.tips->setFacts(currentTipFacts(state(), RoadmapVotes{source.dependencies().userDefaults}));
  if (const auto& shown = *state().statistics.currentTipID) services.tips->didShow(*shown);
}

Frontend::Asked* Frontend::asked(std::string_view name) {
  const auto found = std::ranges::find(known, name, &Asked::name);
  return found == known.end() ? nullptr : &*found;
}

}  // namespace mivo::host
