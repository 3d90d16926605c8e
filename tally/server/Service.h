// SPDX-License-Identifier: MIT
#pragma once
#include <chrono>
#include <functional>
#include <variant>

#include "tally/net/Asio.h"
#include "tally/request/Decision.h"
#include "tally/server/Metrics.h"
#include "tally/server/Options.h"
#include "tally/server/PageFiles.h"
#include "tally/server/RateLimiter.h"
#include "tally/server/Roadmap.h"
#include "tally/server/VoteAllowance.h"
#include "tally/store/CounterStore.h"

namespace mivo::tally {

/// Where a request came in.
enum class Door { everyones, admins };

/// Turns requests into answers, or into what has to be asked of the store first. Knows no sockets.
class Service {
 public:
  /// `isCertified` says whether the certificate has a name; `metricsText` writes the page of /metrics.
  Service(const ServeOptions& options, const CounterStore& store, Roadmap roadmap, PageFiles page,
          std::function<bool(const std::string&)> isCertified, std::function<std::string()> metricsText);

  std::variant<Answer, Operation> handle(const Request& request, Door door, const asio::ip::address& client,
                                         std::chrono::steady_clock::time_point now);
  /// The answer after the store was asked.
  Answer answerTo(const Result& result) const;
  /// Adds what a web page needs to be allowed to read the answer.
  void allowOrigin(const Request& request, Answer& answer) const;
  void replaceRoadmap(Roadmap newer) { roadmap = std::move(newer); }
  void replacePage(PageFiles newer) { page = std::move(newer); }

 private:
  Route routeOf(const Request& request, Door door) const;
  std::optional<Answer> faultOf(const AddVote& vote, const asio::ip::address& client,
                                std::chrono::steady_clock::time_point now);
  Answer health() const;

  VotePolicy policy;
  const CounterStore& store;
  Roadmap roadmap;
  PageFiles page;
  bool countsAny;
  std::function<std::string()> metricsText;
  bool hasAdminsDoor;
  RateLimiter limiter;
  RateLimiter siteLimiter;
  VoteAllowance allowance;
};

}  // namespace mivo::tally
