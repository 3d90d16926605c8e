// SPDX-License-Identifier: MIT
#include <SQLiteCpp/SQLiteCpp.h>
#include <httplib.h>

#include <algorithm>
#include <condition_variable>
#include <future>
#include <iostream>
#include <map>
#include <mutex>
#include <string>
#include <thread>

// The vote service as one writes it on cpp-httplib: a thread a connection, counts in a map behind a mutex, and, where a
// file is named, a writer thread that commits what came together before it is answered.
namespace {

constexpr std::size_t threads = 80;  // more than there are connections

class Counts {
 public:
  std::int64_t read(const std::string& counter) {
    const std::lock_guard guard{mutex_};
    const auto found = counts_.find(counter);
    return found == counts_.end() ? 0 : found->second;
  }
  std::int64_t add(const std::string& counter, int delta) {
    const std::lock_guard guard{mutex_};
    return counts_[counter] += delta;
  }

 private:
  std::mutex mutex_;
  std::map<std::string, std::int64_t> counts_;
};

class Writer {
 public:
  explicit Writer(const std::string& file) : database_(file, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE) {
    database_.exec("PRAGMA journal_mode = WAL");
    database_.exec("PRAGMA synchronous = FULL");
    database_.exec("CREATE TABLE IF NOT EXISTS counter (name TEXT PRIMARY KEY, value INTEGER NOT NULL) WITHOUT ROWID");
    thread_ = std::jthread{[this](const std::stop_token& stop) { run(stop); }};
  }

  std::int64_t add(const std::string& counter, int delta) {
    Vote vote{counter, delta, {}};
    auto count = vote.count.get_future();
    {
      const std::lock_guard guard{mutex_};
      waiting_.push_back(&vote);
    }
    wake_.notify_one();
    return count.get();
  }

 private:
  struct Vote {
    const std::string& counter;
    int delta;
    std::promise<std::int64_t> count;
  };

  void run(const std::stop_token& stop) {
    SQLite::Statement upsert{database_,
                             "INSERT INTO counter VALUES (?1, ?2) ON CONFLICT (name) DO UPDATE SET value = value + ?2 "
                             "RETURNING value"};
    for (;;) {
      std::vector<Vote*> votes;
      {
        std::unique_lock lock{mutex_};
        if (!wake_.wait(lock, stop, [this] { return !waiting_.empty(); })) return;
        votes.swap(waiting_);
      }
      std::vector<std::int64_t> counts;
      SQLite::Transaction transaction{database_};
      for (const auto* vote : votes) {
        upsert.bindNoCopy(1, vote->counter);
        upsert.bind(2, vote->delta);
        upsert.executeStep();
        counts.push_back(upsert.getColumn(0).getInt64());
        upsert.reset();
      }
      transaction.commit();
      for (std::size_t i = 0; i < votes.size(); ++i) votes[i]->count.set_value(counts[i]);
    }
  }

  SQLite::Database database_;
  std::mutex mutex_;
  std::condition_variable_any wake_;
  std::vector<Vote*> waiting_;
  std::jthread thread_;
};

void answer(httplib::Response& response, std::int64_t count) {
  response.set_header("Cache-Control", "no-store");
  response.set_content("{\"value\":" + std::to_string(count) + "}", "application/json");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "usage: blocking-tally PORT [SQLITE-FILE]\n";
    return 2;
  }
  Counts counts;
  std::unique_ptr<Writer> writer;
  if (argc > 2) writer = std::make_unique<Writer>(argv[2]);
  httplib::Server server;
  server.new_task_queue = [] { return new httplib::ThreadPool(threads); };
  server.set_tcp_nodelay(true);
  server.set_keep_alive_max_count(std::numeric_limits<std::size_t>::max());
  server.Get(R"(/get/([\w.-]+)/feature([\w.-]+))", [&](const httplib::Request& request, httplib::Response& response) {
    answer(response, counts.read(request.matches[1].str() + "/feature" + request.matches[2].str()));
  });
  server.Get(R"(/add/([\w.-]+)/feature([\w.-]+))", [&](const httplib::Request& request, httplib::Response& response) {
    const auto counter = request.matches[1].str() + "/feature" + request.matches[2].str();
    const int delta = request.get_param_value("delta") == "-1" ? -1 : 1;
    answer(response, writer ? writer->add(counter, delta) : counts.add(counter, delta));
  });
  return server.listen("127.0.0.1", std::stoi(argv[1])) ? 0 : 1;
}
