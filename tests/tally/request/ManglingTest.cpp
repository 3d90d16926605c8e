// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>

#include "tally/request/Decision.h"
#include "tally/request/RequestReader.h"

// Requests that were spoilt at random. What is still a vote afterwards is judged by a reader of its own, which knows
// one way only to write a vote.
namespace mivo::tally {
namespace {

constexpr int mutations = 100'000;

const std::array<std::string, 5> originals{
    "GET /add/app.example/feature12?delta=1 HTTP/1.1\r\nHost: tally.example\r\n\r\n",
    "GET /add/app.example/feature12?x=1&delta=-1 HTTP/1.1\r\nHost: a\r\nAccept: */*\r\nContent-Length: 0\r\n\r\n",
    "HEAD /add/app.example/feature12?delta=1 HTTP/1.1\r\nHost: a\r\nTransfer-Encoding: chunked\r\n\r\n0\r\n\r\n",
    "GET /get/app.example/feature12 HTTP/1.0\r\nOrigin: https://app.example\r\nX-Forwarded-For: 192.0.2.1\r\n\r\n",
    "POST /add/a/feature1?delta=1 HTTP/1.1\r\nHost: a\r\nContent-Length: 3\r\n\r\nabcGET / HTTP/1.1\r\n\r\n"};

class Mangler {
 public:
  std::string next() {
    auto text = originals[below(originals.size())];
    for (auto times = 1 + below(4); times > 0 && !text.empty(); --times) mangle(text);
    return text;
  }

 private:
  std::size_t below(std::size_t end) { return std::uniform_int_distribution<std::size_t>{0, end - 1}(random); }

  char odd() {
    constexpr std::string_view likely{"\r\n\0 :/?&=-1%\xff\t", 14};
    return below(2) == 0 ? likely[below(likely.size())] : static_cast<char>(below(256));
  }

  void mangle(std::string& text) {
    const auto at = below(text.size());
    switch (below(6)) {
      case 0:
        text[at] = odd();
        break;
      case 1:
        text.insert(at, 1, odd());
        break;
      case 2:
        text.erase(at, 1 + below(8));
        break;
      case 3:
        text.resize(at);
        break;
      case 4:
        text.insert(at, text.substr(below(text.size()), below(40)));
        break;
      default:
        text.insert(at, originals[below(originals.size())].substr(below(60)));
        break;
    }
  }

  std::mt19937 random{20261124};
};

// GET /add/NAMESPACE/featureID?...delta=N... HTTP/1.x, with anything allowed in the other parameters.
bool isPlainlyAVote(std::string_view bytes, const AddVote& vote) {
  while (bytes.starts_with("\r\n")) bytes.remove_prefix(2);
  const auto line = bytes.substr(0, bytes.find("\r\n"));
  auto middle = line.substr(0, line.rfind(' '));
  if (!middle.starts_with("GET ")) return false;
  middle.remove_prefix(4);
  for (const std::string_view scheme : {"http://", "https://"})
    if (middle.starts_with(scheme)) middle.remove_prefix(middle.find('/', scheme.size()));
  const auto path = "/add/" + std::string{vote.counter} + "?";
  const auto delta = vote.delta == 1 ? "delta=1" : "delta=-1";
  const auto query = middle.starts_with(path) ? middle.substr(path.size()) : std::string_view{};
  const auto parameters = "&" + std::string{query} + "&";
  const auto found = parameters.find("&" + std::string{delta} + "&");
  return found != std::string::npos && parameters.find("&delta=", found + 1) == std::string::npos &&
         vote.counter.find_first_not_of("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789.-_/") ==
             std::string_view::npos;
}

bool liesWithin(std::string_view part, std::string_view whole) {
  return part.empty() || (part.data() >= whole.data() && part.data() + part.size() <= whole.data() + whole.size());
}

TEST(MangledRequests, neverVoteUnlessTheyStillSayAVote) {
  Mangler mangler;
  int votes = 0;
  int refusals = 0;
  for (int i = 0; i < mutations; ++i) {
    const auto bytes = mangler.next();
    const auto reading = readRequest(bytes);
    ASSERT_LE(reading.consumed, bytes.size());
    if (reading.state == RequestReading::State::refused) {
      ASSERT_GE(reading.refusal.status, 400U) << bytes;
      ++refusals;
      continue;
    }
    if (reading.state != RequestReading::State::complete) continue;
    for (const auto part : {reading.request.target, reading.request.host, reading.request.origin,
                            reading.request.fetchSite, reading.request.forwardedFor, reading.request.methodName})
      ASSERT_TRUE(liesWithin(part, bytes)) << bytes;
    const auto route = decide(reading.request, {});
    const auto* vote = std::get_if<AddVote>(&route);
    if (vote == nullptr) continue;
    ++votes;
    ASSERT_TRUE(isPlainlyAVote(bytes, *vote)) << bytes;
  }
  // The originals are spoilt enough to be refused, and not so much that votes are no longer looked at.
  EXPECT_GT(refusals, mutations / 10);
  EXPECT_GT(votes, mutations / 100);
}

}  // namespace
}  // namespace mivo::tally
