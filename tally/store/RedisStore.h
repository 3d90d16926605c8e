// SPDX-License-Identifier: MIT
#pragma once
#include <chrono>
#include <memory>

#include "tally/net/Asio.h"
#include "tally/store/CounterStore.h"
#include "tally/store/RedisLink.h"

namespace mivo::tally {

/// Counters in a Redis that several instances share. No count is kept here: each read is a GET and each vote an INCRBY,
/// which is atomic, refuses to overflow, and is never sent twice. While Redis is away every operation is `away`, and
/// the store tries to reach it again, every two seconds at the longest.
class RedisStore final : public CounterStore {
 public:
  RedisStore(asio::io_context& loop, RedisAddress address, Report report);
  ~RedisStore() override;

  std::optional<std::int64_t> known(std::string_view) const override { return std::nullopt; }
  void submit(Operations operations, std::function<void(Results)> done) override;
  bool isAvailable() const override { return isReady_; }

 private:
  void connect();
  void didConnect();
  void didLose(const std::string& reason);
  void didReply(const std::vector<RedisReply>& replies);
  void finish(Results results);

  asio::io_context& loop_;
  RedisAddress address_;
  Report report_;
  std::shared_ptr<RedisLink> link_;
  asio::steady_timer retry_;
  std::chrono::milliseconds nextDelay_;
  bool isReady_ = false;
  bool wasReported_ = false;

  Operations operations_;
  std::function<void(Results)> done_;
  bool isSent_ = false;  // operations_ are in flight
};

}  // namespace mivo::tally
