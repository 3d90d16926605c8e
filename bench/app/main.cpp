// SPDX-License-Identifier: MIT
// One run of the app on a database of its own; prints a line for each figure: its name and its number.
#include <QtCore/QTimer>
#include <QtGui/QGuiApplication>

#include <sys/resource.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <numeric>

#include "adapters/system/FreedMemory.h"
#include "app/program/Options.h"
#include "bench/app/DrivenApp.h"

namespace mivo::app {
namespace {

constexpr int switches = 21, drags = 6, records = 11;

struct Wanted {
  Options options;
  double begun = 0;         // when this process was asked for, in seconds since 1970
  int hiddenSeconds = 0;    // how long to watch a hidden window
  std::string databaseOut;  // only writes the sample into a database
};

void print(const char* name, double number) { std::cout << name << ' ' << number << '\n'; }

double quantile(std::vector<double> numbers, double part) {
  if (numbers.empty()) throw std::runtime_error{"nothing was measured"};
  std::ranges::sort(numbers);
  return numbers[static_cast<std::size_t>(part * static_cast<double>(numbers.size() - 1))];
}

double secondsOfClock() {
  return std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch()).count();
}

double processorMilliseconds() {
  rusage used{};
  getrusage(RUSAGE_SELF, &used);
  const auto of = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
  };
  return of(used.ru_utime) + of(used.ru_stime);
}

double peakMegabytes() {
  rusage used{};
  getrusage(RUSAGE_SELF, &used);
  return static_cast<double>(used.ru_maxrss) * 1024 / 1e6;
}

// From the click on another range to the frame that shows it, with the charts on screen.
void measureRangeSwitch(DrivenApp& app) {
  const QQuickItem* picker = app.ofType("SegmentedControl");
  if (picker->mapToScene(QPointF{}).y() > app.window().height() / 2) app.bringIntoView(picker);
  std::vector<double> times;
  for (int i = 0; i < switches; ++i) {
    const double segment = (i + 1) % 3;  // month, year, week
    times.push_back(app.click(picker, {picker->width() * (segment + 0.5) / 3, picker->height() / 2}));
    settle(app.window(), 400);
  }
  print("range", quantile(times, 0.5));
  print("range-worst", quantile(times, 1));
}

// Ten years of days, from the latest backwards, by a finger that lets go while it moves.
void measureChartScroll(DrivenApp& app) {
  const QQuickItem* bars = app.ofType("ThemedDayBars");
  app.bringIntoView(bars);
  const QPoint leftEnd = bars->mapToScene({30, bars->height() / 2}).toPoint();
  const int moves = static_cast<int>(bars->width() - 110) / 8;
  app.takeFrameTimes();
  for (int i = 0; i < drags; ++i) app.drag(leftEnd, {8, 0}, moves);
  const auto times = app.takeFrameTimes();
  print("chart-frames", static_cast<double>(times.size()));
  print("chart", quantile(times, 0.5));
  print("chart-p99", quantile(times, 0.99));
}

// The whole column down and up again.
void measureColumnScroll(DrivenApp& app) {
  app.bringIntoView(app.ofType("SummaryCard"));
  const QPoint low{app.window().width() - 30, app.window().height() - 120}, high{low.x(), 100};
  app.takeFrameTimes();
  for (int i = 0; i < drags; ++i) app.drag(low, {0, -10}, (low.y() - high.y()) / 10);
  for (int i = 0; i < drags; ++i) app.drag(high, {0, 10}, (low.y() - high.y()) / 10);
  const auto times = app.takeFrameTimes();
  print("column-frames", static_cast<double>(times.size()));
  print("column", quantile(times, 0.5));
  print("column-p99", quantile(times, 0.99));
}

// From a fast that is saved in its sheet to the frame with the new figures; between them it is written to the disk.
double record(DrivenApp& app, Date start) {
  const auto* rows = app.model().fasting->history->property("rows").value<QAbstractItemModel*>();
  int atChange = -1;
  const auto changed =
      QObject::connect(rows, &QAbstractItemModel::rowsInserted, &app.window(), [&] { atChange = app.framesShown(); });
  app.model().send(AppModel::Action::didTapAddFast{});
  app.model().send(AppModel::Action::didChangeDraftStart{start});
  app.model().send(AppModel::Action::didChangeDraftEnd{start + std::chrono::minutes{1}});
  settle(app.window(), 400);
  QElapsedTimer timer;
  timer.start();
  app.model().send(AppModel::Action::didTapSaveDraft{});
  while (atChange < 0 && timer.elapsed() < 5000)
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 20);
  if (atChange < 0 || !app.waitForFrame(atChange + 1)) throw std::runtime_error{"a fast was not recorded"};
  QObject::disconnect(changed);
  return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

void measureRecording(DrivenApp& app) {
  app.bringIntoView(app.ofType("SummaryCard"));
  const Date now = dependency(&Dependencies::date)->now();
  std::vector<double> times;
  for (int i = 0; i < records; ++i) {
    times.push_back(record(app, now - std::chrono::minutes{2 * i + 2}));
    settle(app.window(), 400);
  }
  print("record", quantile(times, 0.5));
  print("record-worst", quantile(times, 1));
}

void measureHidden(DrivenApp& app, int seconds) {
  app.window().hide();
  settle(app.window(), 500);
  const double before = processorMilliseconds();
  const int frames = app.framesShown();
  QEventLoop waiting;
  QTimer::singleShot(seconds * 1000, &waiting, &QEventLoop::quit);
  waiting.exec();
  print("hidden", processorMilliseconds() - before);
  print("hidden-frames", app.framesShown() - frames);
}

void writeDatabase(const Wanted& wanted) {
  auto environment = makeEnvironment(wanted.options);
  if (!environment) throw std::runtime_error{environment.error()};
  environment->history.reset();  // closed, it is whole in one file
  std::filesystem::copy_file(environment->sampleFolder->path() / "mivo.sqlite", wanted.databaseOut);
}

void measure(const Wanted& wanted) {
  const auto size = sizeOf(wanted.options.size);
  if (!size) throw std::runtime_error{"--size: expected something like 390x844"};
  const auto environment = makeEnvironment(wanted.options);
  if (!environment) throw std::runtime_error{environment.error()};
  if (!environment->history) throw std::runtime_error{environment->notice};
  const DependencyScope scope{environment->dependencies};
  DrivenApp app{*environment, wanted.options, *size};
  if (!app.waitForFrame(1)) throw std::runtime_error{"nothing was drawn"};
  print("start", (secondsOfClock() - wanted.begun) * 1e3);
  print("start-processor", processorMilliseconds());
  print("start-memory", peakMegabytes());
  settle(app.window(), 500);
  print("start-frames", app.framesShown());
  if (wanted.hiddenSeconds > 0) return measureHidden(app, wanted.hiddenSeconds);
  measureRangeSwitch(app);
  measureChartScroll(app);
  measureColumnScroll(app);
  measureRecording(app);
  print("memory", peakMegabytes());
}

int run(int count, char** arguments) {
  CLI::App program{"One run of the app, measured.", "app_run"};
  Wanted wanted;
  wanted.options.size = "390x844";
  wanted.options.tab = "statistics";
  addOptions(program, wanted.options);
  program.add_option("--begun", wanted.begun, "When this process was asked for, in seconds since 1970");
  program.add_option("--hidden", wanted.hiddenSeconds, "Only watches a hidden window, for so many seconds");
  program.add_option("--write", wanted.databaseOut, "Only writes the sample into a database");
  CLI11_PARSE(program, count, arguments);
  choosePainting(wanted.options);
  int qtCount = 1;
  QGuiApplication application{qtCount, arguments};
  wanted.databaseOut.empty() ? measure(wanted) : writeDatabase(wanted);
  return 0;
}

}  // namespace
}  // namespace mivo::app

int main(int count, char** arguments) {
  mivo::adapters::keepFreedMemory();  // as the app does
  try {
    return mivo::app::run(count, arguments);
  } catch (const std::exception& error) {
    std::cerr << "app_run: " << error.what() << '\n';
    return 1;
  }
}
