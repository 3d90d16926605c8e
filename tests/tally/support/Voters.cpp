// SPDX-License-Identifier: MIT
#include "tests/tally_support/Voters.h"

#include <chrono>
#include <optional>
#include <stdexcept>

#include "tests/tally_support/Eventually.h"
#include "tests/tally_support/HttpClient.h"

namespace mivo::tally::test {
namespace {

constexpr std::chrono::milliseconds breath{2};  // before a vote that failed is tried again
constexpr std::chrono::minutes patience{1};

std::optional<HttpAnswer> answerOf(HttpClient& client, const std::string& target) {
  try {
    return client.get(target);
  } catch (const std::exception&) {
    return std::nullopt;
  }
}

}  // namespace

Voters::Voters(std::size_t size, std::string counter, std::function<std::uint16_t()> portNow)
    : target("/add/" + std::move(counter) + "?delta=1"), port(std::move(portNow)) {
  for (std::size_t i = 0; i < size; ++i) clients.emplace_back([this] { vote(); });
}

Voters::~Voters() { stop(); }

void Voters::waitForMore(std::int64_t votes) const {
  const auto enough = kept + votes;
  if (!eventually([&] { return kept >= enough; }, patience)) throw std::runtime_error("no votes are kept");
}

Tally Voters::stop() {
  isStopped = true;
  for (auto& client : clients) client.join();
  clients.clear();
  return {kept, unknown};
}

void Voters::vote() {
  while (!isStopped) {
    try {
      voteOnOneConnection();
    } catch (const std::exception&) {
      std::this_thread::sleep_for(breath);  // nobody listens just now
    }
  }
}

void Voters::voteOnOneConnection() {
  HttpClient client{port()};
  while (!isStopped) {
    const auto answer = answerOf(client, target);
    const bool isKept = answer && answer->status == 200;
    ++(isKept ? kept : unknown);
    if (!answer) return;
    if (!isKept) std::this_thread::sleep_for(breath);
  }
}

}  // namespace mivo::tally::test
