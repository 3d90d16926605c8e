// SPDX-License-Identifier: MIT
#include "tally/store/RedisTransfer.h"

#include <charconv>
#include <stdexcept>

#include "tally/net/Asio.h"
#include "tally/store/RedisLink.h"

namespace mivo::tally {
namespace {

constexpr std::string_view keysAtATime = "1000";

std::int64_t numberOf(const std::string& counter, const RedisReply& reply) {
  std::int64_t count = 0;
  const auto* end = reply.text.data() + reply.text.size();
  const auto read = std::from_chars(reply.text.data(), end, count);
  if (reply.kind != RedisReply::Kind::text || read.ec != std::errc{} || read.ptr != end)
    throw std::runtime_error(redisKey(counter) + ": not a whole number");
  return count;
}

// A link that is waited for.
class RedisConversation {
 public:
  explicit RedisConversation(const RedisAddress& address)
      : name(describe(StoreAddress{address})), link(std::make_shared<RedisLink>(loop, address)) {
    bool isReady = false;
    link->open([&isReady] { isReady = true; }, [this](const std::string& reason) { fault = reason; });
    waitUntil(isReady);
  }
  ~RedisConversation() { link->close(); }
  RedisConversation(const RedisConversation&) = delete;
  RedisConversation& operator=(const RedisConversation&) = delete;

  RedisLink::Replies ask(std::string commands, std::size_t count) {
    RedisLink::Replies replies;
    bool isAnswered = false;
    link->exchange(std::move(commands), count, [&](RedisLink::Replies received) {
      replies = std::move(received);
      isAnswered = true;
    });
    waitUntil(isAnswered);
    for (const auto& reply : replies)
      if (reply.kind == RedisReply::Kind::error) throw std::runtime_error(name + ": " + reply.text);
    return replies;
  }

  RedisReply ask(std::span<const std::string_view> words) {
    std::string command;
    appendCommand(command, words);
    return ask(std::move(command), 1).front();
  }

 private:
  void waitUntil(const bool& isDone) {
    while (!isDone && fault.empty()) loop.run_one();
    if (!fault.empty()) throw std::runtime_error(name + ": " + fault);
  }

  std::string name;
  asio::io_context loop{1};
  std::shared_ptr<RedisLink> link;
  std::string fault;
};

void readCounts(RedisConversation& redis, const std::vector<RedisReply>& keys, Counts& counts) {
  if (keys.empty()) return;
  std::vector<std::string_view> words{"MGET"};
  for (const auto& key : keys) words.emplace_back(key.text);
  const auto values = redis.ask(words).list;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    if (keys[i].text == redisKeyPrefix) continue;  // what servers probe with
    const auto counter = keys[i].text.substr(redisKeyPrefix.size());
    counts[counter] = numberOf(counter, values.at(i));
  }
}

}  // namespace

Counts readRedis(const RedisAddress& address) {
  RedisConversation redis{address};
  const auto pattern = redisKey("*");
  Counts counts;  // a scan may show a key twice
  std::string cursor = "0";
  do {
    const std::array<std::string_view, 6> scan{"SCAN", cursor, "MATCH", pattern, "COUNT", keysAtATime};
    const auto page = redis.ask(scan);
    readCounts(redis, page.list.at(1).list, counts);
    cursor = page.list.at(0).text;
  } while (cursor != "0");
  return counts;
}

void changeRedis(const RedisAddress& address, const std::vector<Change>& changes) {
  RedisConversation redis{address};
  for (const auto& change : changes) {
    std::int64_t difference = 0;
    if (__builtin_sub_overflow(change.to, change.from, &difference))
      throw std::runtime_error(change.counter + ": the step from " + std::to_string(change.from) + " to " +
                               std::to_string(change.to) + " is too large");
    const auto key = redisKey(change.counter);
    const auto step = std::to_string(difference);
    const std::array<std::string_view, 3> add{"INCRBY", key, step};
    const auto reply = redis.ask(add);
    if (reply.integer != change.to)
      throw std::runtime_error(change.counter + ": became " + std::to_string(reply.integer) + " instead of " +
                               std::to_string(change.to) + ", since somebody voted meanwhile");
  }
}

std::optional<std::int64_t> replaceInRedis(const RedisAddress& address, const std::string& counter,
                                           std::int64_t count) {
  RedisConversation redis{address};
  const auto key = redisKey(counter);
  const auto value = std::to_string(count);
  const std::array<std::string_view, 3> set{"GETSET", key, value};
  const auto former = redis.ask(set);
  if (former.kind == RedisReply::Kind::nothing) return std::nullopt;
  return numberOf(counter, former);
}

}  // namespace mivo::tally
