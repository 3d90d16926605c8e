// SPDX-License-Identifier: MIT
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <fstream>
#include <iostream>
#include <memory>

#include "tally/server/HealthCheck.h"
#include "tally/server/Options.h"
#include "tally/server/Server.h"
#include "tally/store/RedisStore.h"
#include "tally/store/SqliteStore.h"
#include "tally/store/Transfer.h"

namespace mivo::tally {
namespace {

// A peer that is gone and a file-size limit are errors of one write, not the end of the process.
void ignoreFatalSignals() {
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
}

// Connections are descriptors; the store and the log need a few beside them. How many connections there may be.
std::size_t raiseDescriptorLimit(std::size_t wanted) {
  constexpr std::size_t others = 64;
  rlimit limit{};
  if (::getrlimit(RLIMIT_NOFILE, &limit) != 0) return wanted;
  auto raised = limit;
  raised.rlim_cur = std::min<rlim_t>(limit.rlim_max, std::max<rlim_t>(limit.rlim_cur, wanted + others));
  if (::setrlimit(RLIMIT_NOFILE, &raised) == 0) limit = raised;
  return limit.rlim_cur > others ? std::min<std::size_t>(wanted, limit.rlim_cur - others) : 1;
}

std::unique_ptr<CounterStore> makeStore(asio::io_context& loop, const ServeOptions& options, Log& log) {
  const Report report = [&log](std::string_view text) { log.event("store", text); };
  if (const auto* redis = std::get_if<RedisAddress>(&options.store))
    return std::make_unique<RedisStore>(loop, *redis, report, options.storeTimes, options.mostCounters);
  return std::make_unique<SqliteStore>(loop, std::get<SqliteAddress>(options.store).file, report, options.storeTimes,
                                       options.mostCounters);
}

int run(Exit exit) { return exit.code; }

int run(ServeOptions options) {
  options.mostConnections = raiseDescriptorLimit(options.mostConnections);
  asio::io_context loop{1};
  Log log{STDERR_FILENO, options.logDetail};
  const auto store = makeStore(loop, options, log);
  Server{loop, options, *store, log}.run();
  log.event("stopped", "every answered vote is kept");
  return 0;
}

int run(const ExportOptions& options) {
  const auto counts = readStore(options.store);
  if (options.to.empty()) {
    writeCounts(std::cout, counts);
    if (!std::cout.flush()) throw std::runtime_error("standard output: cannot be written");
    return 0;
  }
  writeCounts(options.to, counts);
  return 0;
}

int run(const ImportOptions& options) {
  std::ifstream in{options.from, std::ios::binary};
  if (!in) throw std::runtime_error(options.from.string() + ": cannot be read");
  const auto plan = importCounts(options.store, readCounts(in, options.from.string()), options.replace);
  for (const auto& conflict : plan.conflicts)
    std::cerr << options.from.string() << ": " << conflict.counter << ": " << describe(options.store) << " counts "
              << conflict.from << ", the file " << conflict.to << '\n';
  if (!plan.conflicts.empty()) throw std::runtime_error("nothing was imported: --replace takes the file's counts");
  std::cout << plan.changes.size() << " counters imported, " << plan.equal << " were there already\n";
  return 0;
}

int run(const CorrectOptions& options) {
  const auto former = correctCount(options.store, options.counter, options.value);
  std::cout << options.counter << ": " << (former ? std::to_string(*former) : "no votes") << " -> " << options.value
            << '\n';
  return 0;
}

int run(const HealthOptions& options) { return isHealthy(options) ? 0 : 1; }

}  // namespace
}  // namespace mivo::tally

int main(int argc, char** argv) {
  using namespace mivo::tally;
  ignoreFatalSignals();
  try {
    return std::visit([](const auto& command) { return run(command); }, parseCommandLine(argc, argv));
  } catch (const std::exception& error) {
    std::cerr << "mivo-tally: " << error.what() << '\n';
    return 1;
  }
}
