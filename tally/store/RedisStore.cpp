// SPDX-License-Identifier: MIT
#include "tally/store/RedisStore.h"

#include <algorithm>
#include <charconv>

namespace mivo::tally {
namespace {

constexpr std::chrono::milliseconds firstDelay{50};
constexpr std::chrono::milliseconds longestDelay{2000};

Result counted(const std::string& text) {
  std::int64_t count = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), count);
  if (error != std::errc{} || end != text.data() + text.size()) return {};
  return {Outcome::counted, count};
}

Result resultOf(const RedisReply& reply) {
  switch (reply.kind) {
    case RedisReply::Kind::nothing:
      return {Outcome::counted, 0};
    case RedisReply::Kind::integer:
      return {Outcome::counted, reply.integer};
    case RedisReply::Kind::text:
      return counted(reply.text);
    case RedisReply::Kind::error:
      return {reply.text.find("overflow") == std::string::npos ? Outcome::away : Outcome::overflow, 0};
    case RedisReply::Kind::list:
      break;
  }
  return {};
}

// A replica that was a primary before a fail-over, or that has lost its primary: the name may lead to another one now.
bool asksToReconnect(const RedisReply& reply) {
  return reply.kind == RedisReply::Kind::error &&
         (reply.text.starts_with("READONLY") || reply.text.starts_with("MASTERDOWN"));
}

bool isFault(const RedisReply& reply) { return resultOf(reply).outcome == Outcome::away; }

}  // namespace

RedisStore::RedisStore(asio::io_context& loop, RedisAddress address, Report report)
    : loop_(loop), address_(std::move(address)), report_(std::move(report)), retry_(loop), nextDelay_(firstDelay) {
  connect();
}

RedisStore::~RedisStore() { link_->close(); }

void RedisStore::connect() {
  link_ = std::make_shared<RedisLink>(loop_, address_);
  link_->open([this] { didConnect(); }, [this](const std::string& reason) { didLose(reason); });
}

void RedisStore::didConnect() {
  isReady_ = true;
  nextDelay_ = firstDelay;
  report_("Redis at " + describe(address_.endpoint) + " is there");
  wasReported_ = false;
}

void RedisStore::didLose(const std::string& reason) {
  isReady_ = false;
  if (!std::exchange(wasReported_, true)) report_("Redis at " + describe(address_.endpoint) + " is away: " + reason);
  retry_.expires_after(nextDelay_);
  nextDelay_ = std::min(nextDelay_ * 2, longestDelay);
  retry_.async_wait([this](error_code error) {
    if (!error) connect();
  });
  if (isSent_) finish(Results(operations_.size()));
}

void RedisStore::submit(Operations operations, std::function<void(Results)> done) {
  operations_ = std::move(operations);
  done_ = std::move(done);
  if (!isReady_) return asio::post(loop_, [this] { finish(Results(operations_.size())); });
  isSent_ = true;
  std::string commands;
  for (const auto& operation : operations_) {
    const auto key = redisKey(operation.counter);
    if (operation.delta == 0) appendCommand(commands, {"GET", key});
    if (operation.delta != 0) appendCommand(commands, {"INCRBY", key, operation.delta > 0 ? "1" : "-1"});
  }
  link_->exchange(std::move(commands), operations_.size(), [this](const auto& replies) { didReply(replies); });
}

void RedisStore::didReply(const std::vector<RedisReply>& replies) {
  Results results(replies.size());
  std::ranges::transform(replies, results.begin(), resultOf);
  const auto fault = std::ranges::find_if(replies, isFault);
  if (fault != replies.end() && !std::exchange(wasReported_, true)) report_("Redis refuses: " + fault->text);
  if (fault == replies.end()) wasReported_ = false;
  if (std::ranges::any_of(replies, asksToReconnect)) {
    link_->close();
    asio::post(loop_, [this] { didLose("it is a replica"); });
  }
  finish(std::move(results));
}

void RedisStore::finish(Results results) {
  isSent_ = false;
  std::exchange(done_, {})(std::move(results));
}

}  // namespace mivo::tally
