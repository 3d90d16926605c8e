// SPDX-License-Identifier: MIT
#pragma once
#include <chrono>
#include <limits>
#include <memory>
#include <set>

#include "tally/net/Asio.h"
#include "tally/store/CounterStore.h"
#include "tally/store/RedisLink.h"

namespace mivo::tally {

/// Counters in a Redis that several instances share. No count is kept here: each read is a GET and each vote an INCRBY,
/// which is atomic, refuses to overflow, and is never sent twice. While Redis is away every operation is `away`, and
/// the store tries to reach it again, every two seconds at the longest. While nobody votes a write that changes nothing
/// shows whether Redis takes votes: it may refuse them and answer all the rest.
///
/// Before the first vote for a counter Redis is asked whether it is there and how many keys its database holds, those
/// of others too: votes for a counter beyond `mostCounters` are `full`. Instances that ask at once may go beyond it by
/// what they have under way.
class RedisStore final : public CounterStore {
 public:
  RedisStore(asio::io_context& loop, RedisAddress address, Report report, const StoreTimes& times = {},
             std::int64_t mostCounters = std::numeric_limits<std::int64_t>::max());
  ~RedisStore() override;

  std::optional<std::int64_t> known(std::string_view) const override { return std::nullopt; }
  void submit(Operations asked, std::function<void(Results)> whenDone) override;
  bool isAvailable() const override { return isConnected && takesVotes; }

 private:
  enum class Told { nothing, there, away };

  void connect();
  void didConnect();
  void noteThatItIsThere();
  void didLose(const std::string& reason);
  void send();
  std::vector<std::string> strangers() const;
  void askForRoom(std::vector<std::string> counters);
  void admit(const std::vector<std::string>& counters, const std::vector<RedisReply>& replies);
  void sendOperations();
  bool isFull(const Operation& operation) const { return operation.delta != 0 && full.contains(operation.counter); }
  void didReply(const std::vector<RedisReply>& replies);
  void lookAfter();
  void probe();
  void didProbe(const RedisReply& reply);
  void learn(const RedisReply& reply);
  void reconnect();
  void finish(Results results);

  asio::io_context& loop;
  RedisAddress address;
  Report report;
  std::shared_ptr<RedisLink> link;
  asio::steady_timer retry;
  std::chrono::milliseconds nextDelay;
  StoreTimes times;
  asio::steady_timer second;
  std::chrono::steady_clock::time_point lastWrite;
  bool isConnected = false;
  bool takesVotes = false;  // as far as the last write tells
  Told told = Told::nothing;
  bool wasRefusalReported = false;

  std::int64_t mostCounters;
  // Trees: strangers choose the names, and could choose them to collide.
  std::set<std::string, std::less<>> there;  // counters that Redis has, as far as this connection has seen
  std::set<std::string, std::less<>> full;   // counters of the present batch that there is no room for

  Operations operations;
  std::function<void(Results)> done;
  bool isProbing = false;  // the operations wait
};

}  // namespace mivo::tally
