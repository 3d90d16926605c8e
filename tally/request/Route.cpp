// SPDX-License-Identifier: MIT
#include "tally/request/Route.h"

#include <optional>

#include "tally/request/CounterName.h"

namespace mivo::tally {
namespace {

constexpr Refusal wrongDelta{400, "delta must be given once and be 1 or -1"};

// A client may send the whole address ("http://host/path"): only its path counts.
std::string_view withoutAuthority(std::string_view target) {
  for (const std::string_view scheme : {"http://", "https://"}) {
    if (!target.starts_with(scheme)) continue;
    const auto path = target.find('/', scheme.size());
    return path == std::string_view::npos ? "/" : target.substr(path);
  }
  return target;
}

std::optional<int> deltaOf(std::string_view query) {
  constexpr std::string_view name = "delta=";
  std::optional<int> delta;
  while (!query.empty()) {
    const auto end = query.find('&');
    const auto parameter = query.substr(0, end);
    query = end == std::string_view::npos ? std::string_view{} : query.substr(end + 1);
    if (!parameter.starts_with(name)) continue;
    const auto value = parameter.substr(name.size());
    if (delta || (value != "1" && value != "-1")) return std::nullopt;
    delta = value == "1" ? 1 : -1;
  }
  return delta;
}

Route voteOn(std::string_view counter, std::string_view query) {
  const auto delta = deltaOf(query);
  if (!delta) return wrongDelta;
  return AddVote{counter, *delta};
}

}  // namespace

Route routeOf(std::string_view target) {
  target = withoutAuthority(target);
  const auto mark = target.find('?');
  const auto path = target.substr(0, mark);
  const auto query = mark == std::string_view::npos ? std::string_view{} : target.substr(mark + 1);

  const bool reads = path.starts_with("/get/");
  if (reads || path.starts_with("/add/")) {
    const auto counter = path.substr(5);
    if (const auto fault = faultOfCounterName(counter)) return Refusal{400, *fault};
    return reads ? Route{ReadCount{counter}} : voteOn(counter, query);
  }
  if (path == "/data/roadmap-mivo.json") return ReadRoadmap{};
  if (path == "/health") return ReadHealth{};
  if (path == "/metrics") return ReadMetrics{};
  if (path == "/robots.txt") return ReadRobots{};
  if (path.starts_with('/')) return ReadFile{path};
  return nothingThere;
}

}  // namespace mivo::tally
