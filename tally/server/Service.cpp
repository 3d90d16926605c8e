// SPDX-License-Identifier: MIT
#include "tally/server/Service.h"

#include "tally/request/ClientAddress.h"
#include "tally/request/CounterName.h"

namespace mivo::tally {
namespace {

constexpr unsigned retrySeconds = 5;
constexpr Refusal storeIsAway{503, "the votes cannot be read or kept just now"};
constexpr Refusal wouldOverflow{409, "the count cannot go further"};
constexpr auto robots = "User-agent: *\nDisallow: /\n";  // a crawler that follows links would vote
constexpr Refusal notOnTheRoadmap{404, "the roadmap has no such feature"};
constexpr Refusal noFurtherCounter{409, "no further counters are taken"};
constexpr Refusal tooMany{429, "too many votes from this address"};
constexpr Refusal enoughForToday{429, "this address has voted for this feature enough today"};

template <class... Cases>
struct Overloaded : Cases... {
  using Cases::operator()...;
};

Hosts hostsOf(const ServeOptions& options, std::function<bool(const std::string&)> isCertified) {
  if (!options.hosts.empty()) return {.names = options.hosts};
  error_code error;
  const auto address = asio::ip::make_address(options.listen.host, error);
  return {.names = {"localhost", options.listen.host},
          .isCertified = std::move(isCertified),
          .isForPagesOnly = !error && address.is_unspecified()};
}

}  // namespace

Service::Service(const ServeOptions& options, const CounterStore& counters, Roadmap served, PageFiles pageServed,
                 std::function<bool(const std::string&)> isCertified, std::function<std::string()> writeMetrics)
    : policy{options.allowedOrigins, hostsOf(options, std::move(isCertified))},
      store(counters),
      roadmap(std::move(served)),
      page(std::move(pageServed)),
      countsAny(options.countsAny),
      metricsText(std::move(writeMetrics)),
      hasAdminsDoor(options.admin.has_value()),
      limiter(options.votesPerMinute),
      siteLimiter(options.votesPerMinute * householdsOfASite),
      allowance(options.votesPerDay) {}

Route Service::routeOf(const Request& request, Door door) const {
  const auto route = decide(request, policy);
  const bool isAdmins = std::holds_alternative<ReadHealth>(route) || std::holds_alternative<ReadMetrics>(route);
  if (isAdmins && door == Door::everyones && hasAdminsDoor) return nothingThere;
  if (!isAdmins && door == Door::admins && !std::holds_alternative<Refusal>(route)) return nothingThere;
  return route;
}

std::optional<Answer> Service::faultOf(const AddVote& vote, const asio::ip::address& client,
                                       std::chrono::steady_clock::time_point now) {
  if (!countsAny && roadmap.ids && !roadmap.ids->contains(featureIdOf(vote.counter)))
    return refusalAnswer(notOnTheRoadmap);
  if (const auto wait = limiter.secondsToWait(rateKey(client), now)) return refusalAnswer(tooMany, wait);
  const auto site = siteKey(client);
  if (const auto wait = site ? siteLimiter.secondsToWait(*site, now) : 0) return refusalAnswer(tooMany, wait);
  const auto time = std::chrono::system_clock::now();
  const auto today = std::chrono::floor<std::chrono::days>(time);
  if (allowance.take(client, vote.counter, vote.delta, today)) return std::nullopt;
  const auto untilTomorrow = std::chrono::ceil<std::chrono::seconds>(today + std::chrono::days{1} - time);
  return refusalAnswer(enoughForToday, static_cast<unsigned>(untilTomorrow.count()));
}

std::variant<Answer, Operation> Service::handle(const Request& request, Door door, const asio::ip::address& client,
                                                std::chrono::steady_clock::time_point now) {
  using Handled = std::variant<Answer, Operation>;
  return std::visit(
      Overloaded{
          [](const Refusal& refusal) -> Handled { return refusalAnswer(refusal); },
          [&](const ReadCount& read) -> Handled {
            if (const auto count = store.known(read.counter)) return countAnswer(*count);
            return Operation{std::string{read.counter}, 0};
          },
          [&](const AddVote& vote) -> Handled {
            if (auto fault = faultOf(vote, client, now)) return std::move(*fault);
            return Operation{std::string{vote.counter}, vote.delta};
          },
          [&](const ReadRoadmap&) -> Handled { return Answer{.shared = roadmap.text}; },
          [&](const ReadHealth&) -> Handled { return health(); },
          [&](const ReadFile& read) -> Handled {
            if (auto file = page.answerTo(read.path, request)) return std::move(*file);
            return refusalAnswer(nothingThere);
          },
          [](const ReadRobots&) -> Handled { return Answer{.content = Content::text, .body = robots}; },
          [&](const ReadMetrics&) -> Handled { return Answer{.content = Content::text, .body = metricsText()}; },
      },
      routeOf(request, door));
}

Answer Service::answerTo(const Result& result) const {
  switch (result.outcome) {
    case Outcome::counted:
      return countAnswer(result.count);
    case Outcome::overflow:
      return refusalAnswer(wouldOverflow);
    case Outcome::full:
      return refusalAnswer(noFurtherCounter);
    case Outcome::away:
      break;
  }
  return refusalAnswer(storeIsAway, retrySeconds);
}

void Service::allowOrigin(const Request& request, Answer& answer) const {
  if (policy.allowedOrigins.empty()) return;
  answer.allowedOrigin = originToAllow(request, policy.allowedOrigins);
  answer.variesByOrigin = true;
}

Answer Service::health() const {
  if (!store.isAvailable()) return refusalAnswer(storeIsAway, retrySeconds);
  return Answer{.body = R"({"status":"ok"})"};
}

}  // namespace mivo::tally
