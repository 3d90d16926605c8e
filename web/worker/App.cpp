// SPDX-License-Identifier: MIT
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "adapters/json/NlohmannDecoder.h"
#include "host/app/Settings.h"
#include "host/frontend/Frontend.h"
#include "host/json/RecordJson.h"
#include "host/pages/BrowserWords.h"
#include "host/pages/ControlWords.h"
#include "web/adapters/Imports.h"
#include "web/adapters/StoredDatabase.h"
#include "web/adapters/StoredUserDefaults.h"
#include "web/exchange/Exchange.h"
#include "web/locale/ImportedTexts.h"
#include "web/locale/ReadTimeZone.h"
#include "web/worker/Environment.h"

// What JavaScript calls: the app in a worker. Its pages, lists and actions are those of host/frontend.

namespace mivo::web {
namespace {

using host::AppFeature;
using host::Frontend;

void tellChanged(std::span<const std::string_view> names) {
  std::string lines;
  for (const std::string_view name : names) lines.append(name) += '\n';
  importedChanged(lines.data(), lines.size());
}

/// The app, once its history is open.
class App {
 public:
  explicit App(std::unique_ptr<Environment> opened)
      : environment{std::move(opened)},
        frontend{environment->services},
        changes{frontend.subscribe(tellChanged)},
        faults{environment->faults.subscribe([this](const std::string& fault) { say(fault); })} {
    say(environment->notice);
    frontend.send(AppFeature::Action::statistics{StatisticsFeature::Action::onAppear{}});
    const std::string tab =
        host::openingTab("", frontend.state().runningFast() != nullptr, host::windowState(defaults()).tab);
    frontend.send(AppFeature::Action::didOpen{host::screenFrom(tab).value()});
    frontend.send(AppFeature::Action::didStart{});
  }

  Made send(std::string_view json) {
    const auto done = frontend.send(json);
    keepTab();
    return done ? Made{} : tl::unexpected{done.error()};
  }

  Made lookAround(std::string_view zoneJson) {
    if (zoneJson.empty()) return frontend.lookAround(), Made{};
    auto zone = readTimeZone(adapters::NlohmannDecoder{}.decoded(zoneJson), "timeZone");
    if (!zone) return tl::unexpected{std::move(zone.error())};
    const std::string name{(*zone)->name()};
    environment->calendar->moveTo(std::move(*zone));
    frontend.lookAround(name);
    return {};
  }

  const std::unique_ptr<Environment> environment;
  Frontend frontend;

 private:
  const UserDefaults& defaults() const { return *environment->dependencies->userDefaults; }

  void say(const std::string& sentence) {
    if (!sentence.empty()) frontend.send(AppFeature::Action::didFail{sentence});
  }

  void keepTab() const {
    host::WindowState window = host::windowState(defaults());
    const auto tab = rawValue(host::tabOf(openScreen(frontend.state())));
    if (std::exchange(window.tab, tab) != tab) host::setWindowState(defaults(), window);
  }

  Subscription changes, faults;
};

std::string languageTag = "en";
std::unique_ptr<Environment> tried;  // before the history is open
std::unique_ptr<App> app;

App& opened() {
  if (!app) throw std::runtime_error{"the history is not open"};
  return *app;
}

Made open(std::string_view placeJson, Opening how) {
  const auto place = readPlace(placeJson);
  if (!place) return tl::unexpected{place.error()};
  tried = std::make_unique<Environment>(*place, languageTag);
  const auto done = tried->open(how);
  if (!done) return tl::unexpected{done.error()};
  app = std::make_unique<App>(std::move(tried));
  return {};
}

template <class Record>
std::string jsonOf(const Record& record) {
  host::JsonWriter json{host::JsonWriter::Reader::page};
  host::writeJson(json, record);
  return std::move(json).text();
}

/// Words are there before the history is open: another tab may have it.
Made page(std::string_view name) {
  if (auto composed = app ? app->frontend.page(name) : std::nullopt) return std::move(*composed);
  const auto texts = importedTextLookup();
  if (name == "words") return jsonOf(host::controlWords(*texts));
  if (name == "browser") return jsonOf(host::browserWords(languageTag, *texts));
  return tl::unexpected{"there is no page \"" + std::string{name} + '"'};
}

Made rows(std::string_view name, double first, double count) {
  auto composed = opened().frontend.rows(name, static_cast<std::size_t>(first), static_cast<std::size_t>(count));
  if (!composed) return tl::unexpected{"there is no list \"" + std::string{name} + '"'};
  return std::move(*composed);
}

/// For what answers with nothing.
template <class Do>
const Answer* done(Do&& act) {
  return answerOf([&]() -> Made {
    act();
    return {};
  });
}

}  // namespace
}  // namespace mivo::web

#define MIVO_EXPORT(name) [[clang::export_name(name)]]

using namespace mivo::web;

extern "C" {

/// The language tag that was chosen, of the content of the settings; empty where none was.
MIVO_EXPORT("chosenLanguage") const void* mivoChosenLanguage(const char* settings, std::size_t size) {
  return answerOf([&]() -> Made { return mivo::host::language(StoredUserDefaults::of({settings, size})); });
}

/// The language that the texts of JavaScript are in.
MIVO_EXPORT("begin") const void* mivoBegin(const char* tag, std::size_t size) {
  return done([&] { languageTag.assign(tag, size); });
}

MIVO_EXPORT("open") const void* mivoOpen(const char* place, std::size_t size, std::int32_t how) {
  return answerOf([&] { return open({place, size}, static_cast<Opening>(how)); });
}

/// Whether the history could not be opened because it is damaged, and there are backups.
MIVO_EXPORT("isDamaged") bool mivoIsDamaged() { return tried && tried->isDamaged; }

MIVO_EXPORT("send") const void* mivoSend(const char* action, std::size_t size) {
  return answerOf([&] { return opened().send({action, size}); });
}

MIVO_EXPORT("page") const void* mivoPage(const char* name, std::size_t size) {
  return answerOf([&] { return page({name, size}); });
}

MIVO_EXPORT("rows") const void* mivoRows(const char* name, std::size_t size, double first, double count) {
  return answerOf([&] { return rows({name, size}, first, count); });
}

/// In seconds.
MIVO_EXPORT("untilNextTick") double mivoUntilNextTick() { return app ? app->frontend.untilNextTick() : 0; }

MIVO_EXPORT("tick") const void* mivoTick() {
  return done([] { opened().frontend.tick(); });
}

/// The zone as JSON where it has become another one, or else nothing.
MIVO_EXPORT("lookAround") const void* mivoLookAround(const char* zone, std::size_t size) {
  return answerOf([&] { return opened().lookAround({zone, size}); });
}

MIVO_EXPORT("setWatched") const void* mivoSetWatched(bool isNow) {
  return done([&] { opened().frontend.setWatched(isNow); });
}

MIVO_EXPORT("run") const void* mivoRun(double ticket) {
  return done([&] { opened().environment->turns->take(ticket); });
}

MIVO_EXPORT("answered")
const void* mivoAnswered(double ticket, bool hasFailed, const char* text, std::size_t size) {
  return done([&] { opened().environment->session->answered(ticket, hasFailed, {text, size}); });
}

/// The bytes of a database that has all there is.
MIVO_EXPORT("database") const void* mivoDatabase() {
  return answerOf([]() -> Made { return databaseBytes(opened().environment->connection); });
}
}
