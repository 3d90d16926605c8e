// SPDX-License-Identifier: MIT
#include "tally/store/RedisStore.h"

#include <algorithm>
#include <charconv>

namespace mivo::tally {
namespace {

constexpr std::chrono::milliseconds firstDelay{50};
constexpr std::chrono::milliseconds longestDelay{2000};
constexpr std::size_t mostNamesInMemory = 100'000;

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

// What is wrong with one key says nothing of the others: "ERR value is not an integer", "WRONGTYPE ...".
bool refusesAllVotes(const RedisReply& reply) {
  return isFault(reply) && !reply.text.starts_with("ERR ") && !reply.text.starts_with("WRONGTYPE ");
}

}  // namespace

RedisStore::RedisStore(asio::io_context& eventLoop, RedisAddress server, Report reporter, const StoreTimes& given,
                       std::int64_t counterLimit)
    : loop(eventLoop),
      address(std::move(server)),
      report(std::move(reporter)),
      retry(eventLoop),
      nextDelay(firstDelay),
      times(given),
      second(eventLoop),
      mostCounters(counterLimit) {
  connect();
  lookAfter();
}

RedisStore::~RedisStore() { link->close(); }

void RedisStore::connect() {
  link = std::make_shared<RedisLink>(loop, address, times.answer);
  link->open([this] { didConnect(); }, [this](const std::string& reason) { didLose(reason); });
}

void RedisStore::didConnect() {
  isConnected = true;
  there.clear();  // it may be another one, or have been emptied
  probe();
}

// A replica would say so at each attempt.
void RedisStore::noteThatItIsThere() {
  nextDelay = firstDelay;
  if (std::exchange(told, Told::there) != Told::there) report("Redis at " + describe(address.endpoint) + " is there");
}

void RedisStore::didLose(const std::string& reason) {
  isConnected = false;
  takesVotes = false;
  isProbing = false;
  if (std::exchange(told, Told::away) != Told::away)
    report("Redis at " + describe(address.endpoint) + " is away: " + reason);
  retry.expires_after(nextDelay);
  nextDelay = std::min(nextDelay * 2, longestDelay);
  retry.async_wait([this](error_code error) {
    if (!error) connect();
  });
  if (done) finish(Results(operations.size()));
}

void RedisStore::submit(Operations asked, std::function<void(Results)> whenDone) {
  operations = std::move(asked);
  done = std::move(whenDone);
  if (isProbing) return;  // one exchange at a time
  if (isConnected) return send();
  asio::post(loop, [this] {
    if (done) finish(Results(operations.size()));
  });
}

void RedisStore::send() {
  full.clear();
  if (auto counters = strangers(); !counters.empty()) return askForRoom(std::move(counters));
  sendOperations();
}

// Those that the batch votes for and that may be new, each once, in the order in which they come.
std::vector<std::string> RedisStore::strangers() const {
  std::vector<std::string> counters;
  std::set<std::string_view> seen;
  for (const auto& [counter, delta] : operations)
    if (delta != 0 && !there.contains(counter) && seen.insert(counter).second) counters.push_back(counter);
  return counters;
}

void RedisStore::askForRoom(std::vector<std::string> counters) {
  std::string commands;
  for (const auto& counter : counters) appendCommand(commands, {"EXISTS", redisKey(counter)});
  appendCommand(commands, {"DBSIZE"});
  const auto count = counters.size() + 1;
  link->exchange(std::move(commands), count, [this, counters = std::move(counters)](const auto& replies) {
    admit(counters, replies);
    sendOperations();
  });
}

// Where Redis does not say, the vote itself will tell what is wrong.
void RedisStore::admit(const std::vector<std::string>& counters, const std::vector<RedisReply>& replies) {
  if (there.size() + counters.size() > mostNamesInMemory) there.clear();
  const auto& size = replies.back();
  auto room = size.kind == RedisReply::Kind::integer ? mostCounters - size.integer : mostCounters;
  for (std::size_t i = 0; i < counters.size(); ++i) {
    const bool isNew = replies[i].kind == RedisReply::Kind::integer && replies[i].integer == 0;
    if (isNew && room-- <= 0) {
      full.insert(counters[i]);
    } else {
      there.insert(counters[i]);
    }
  }
}

void RedisStore::sendOperations() {
  std::string commands;
  std::size_t count = 0;
  for (const auto& operation : operations) {
    if (isFull(operation)) continue;
    const auto key = redisKey(operation.counter);
    if (operation.delta == 0) appendCommand(commands, {"GET", key});
    if (operation.delta != 0) appendCommand(commands, {"INCRBY", key, operation.delta > 0 ? "1" : "-1"});
    ++count;
  }
  if (count == 0) return didReply({});
  link->exchange(std::move(commands), count, [this](const auto& replies) { didReply(replies); });
}

// The replies of those that were sent.
void RedisStore::didReply(const std::vector<RedisReply>& replies) {
  Results results;
  auto reply = replies.begin();
  for (const auto& operation : operations) {
    if (isFull(operation)) {
      results.push_back({Outcome::full, 0});
      continue;
    }
    if (operation.delta != 0) learn(*reply);
    results.push_back(resultOf(*reply++));
  }
  const auto fault = std::ranges::find_if(replies, isFault);
  if (fault != replies.end() && !std::exchange(wasRefusalReported, true)) report("Redis refuses: " + fault->text);
  if (fault == replies.end() && takesVotes) wasRefusalReported = false;
  if (std::ranges::any_of(replies, asksToReconnect)) reconnect();
  finish(std::move(results));
}

void RedisStore::lookAfter() {
  const auto age = std::chrono::steady_clock::now() - lastWrite;
  const bool isFree = isConnected && !isProbing && !done;
  if (isFree && age >= (takesVotes ? times.probe : times.probeAgain)) probe();
  second.expires_after(std::chrono::seconds{1});
  second.async_wait([this](error_code error) {
    if (!error) lookAfter();
  });
}

// The command of a vote, on a key that names no counter.
void RedisStore::probe() {
  isProbing = true;
  std::string command;
  appendCommand(command, {"INCRBY", redisKeyPrefix, "0"});
  link->exchange(std::move(command), 1, [this](const auto& replies) { didProbe(replies.front()); });
}

void RedisStore::didProbe(const RedisReply& reply) {
  isProbing = false;
  if (!asksToReconnect(reply)) noteThatItIsThere();
  const bool didTakeVotes = takesVotes;
  learn(reply);
  if (isFault(reply) && !std::exchange(wasRefusalReported, true)) report("Redis refuses: " + reply.text);
  if (takesVotes && !didTakeVotes && std::exchange(wasRefusalReported, false)) report("Redis takes votes again");
  if (asksToReconnect(reply)) return reconnect();  // which answers what waits
  if (done) send();
}

void RedisStore::learn(const RedisReply& reply) {
  lastWrite = std::chrono::steady_clock::now();
  takesVotes = !refusesAllVotes(reply);
}

void RedisStore::reconnect() {
  link->close();
  isConnected = false;
  asio::post(loop, [this] { didLose("it is a replica"); });
}

void RedisStore::finish(Results results) { std::exchange(done, {})(std::move(results)); }

}  // namespace mivo::tally
