// SPDX-License-Identifier: MIT
#include "tally/request/Manners.h"

#include <gtest/gtest.h>

#include "tally/request/Decision.h"

namespace mivo::tally {
namespace {

struct VoteRow {
  const char* name;
  Request request;
  AllowedOrigins allowed;
  unsigned status;  // 0: it may vote
  const char* allowedOrigin;
};
void PrintTo(const VoteRow& row, std::ostream* out) { *out << row.name; }

class Votes : public testing::TestWithParam<VoteRow> {};

TEST_P(Votes, areTakenFromThoseWhoMeantThem) {
  const auto fault = faultOfVote(GetParam().request, GetParam().allowed);
  EXPECT_EQ(fault ? fault->status : 0, GetParam().status);
  EXPECT_EQ(originToAllow(GetParam().request, GetParam().allowed), GetParam().allowedOrigin);
}

Request voteFrom(std::string_view origin, std::string_view fetchSite = {}) {
  Request request;
  request.method = Method::get;
  request.host = "tally.example";
  request.origin = origin;
  request.fetchSite = fetchSite;
  return request;
}

Request withReferer(std::string_view referer, std::string_view fetchSite = {}) {
  auto request = voteFrom({}, fetchSite);
  request.referer = referer;
  return request;
}

Request prefetch() {
  auto request = voteFrom({});
  request.isPrefetch = true;
  return request;
}

Request head() {
  auto request = voteFrom({});
  request.method = Method::head;
  return request;
}

const AllowedOrigins none{};
const AllowedOrigins one{"https://app.example"};
const AllowedOrigins all{"*"};

INSTANTIATE_TEST_SUITE_P(
    Rows, Votes,
    testing::Values(VoteRow{"app", voteFrom({}), none, 0, ""}, VoteRow{"head", head(), all, 405, ""},
                    VoteRow{"prefetch", prefetch(), all, 403, ""},
                    VoteRow{"ownPage", voteFrom("https://tally.example", "same-origin"), none, 0, ""},
                    VoteRow{"typedAddress", voteFrom({}, "none"), none, 0, ""},
                    VoteRow{"foreignPage", voteFrom("https://app.example", "cross-site"), none, 403, ""},
                    VoteRow{"foreignPort", voteFrom("https://tally.example:444"), none, 403, ""},
                    VoteRow{"hiddenOrigin", voteFrom("null"), none, 403, ""},
                    VoteRow{"foreignImage", voteFrom({}, "cross-site"), none, 403, ""},
                    VoteRow{"sameSiteImage", voteFrom({}, "same-site"), none, 403, ""},
                    VoteRow{"shouting", voteFrom("HTTPS://TALLY.EXAMPLE", "SAME-ORIGIN"), none, 0, ""},
                    VoteRow{"shoutingForeignImage", voteFrom({}, "CROSS-SITE"), none, 403, ""},
                    VoteRow{"ownReferer", withReferer("https://tally.example/page?x"), none, 0, ""},
                    VoteRow{"foreignReferer", withReferer("https://evil.example/https://tally.example"), none, 403, ""},
                    VoteRow{"refererThatIsNoAddress", withReferer("tally.example"), none, 403, ""},
                    VoteRow{"imageOfAnAllowedPage", withReferer("https://app.example/page", "cross-site"), one, 0, ""},
                    VoteRow{"allowedPage", voteFrom("https://app.example", "cross-site"), one, 0,
                            "https://app.example"},
                    VoteRow{"otherSchemeOfAllowed", voteFrom("http://app.example"), one, 403, ""},
                    VoteRow{"allowedNameAsPrefix", voteFrom("https://app.example.evil"), one, 403, ""},
                    VoteRow{"imageOfWhichPage", voteFrom({}, "cross-site"), one, 403, ""},
                    VoteRow{"anyImage", voteFrom({}, "cross-site"), all, 0, ""},
                    VoteRow{"anyPage", voteFrom("https://x.example", "cross-site"), all, 0, "https://x.example"}),
    [](const auto& row) { return std::string{row.param.name}; });

struct HostRow {
  const char* name;
  Request request;
  Hosts hosts;
  bool isTaken;
};
void PrintTo(const HostRow& row, std::ostream* out) { *out << row.name; }

class VotesByHost : public testing::TestWithParam<HostRow> {};

TEST_P(VotesByHost, areTakenUnderOwnNames) {
  const auto fault = faultOfHost(GetParam().request, GetParam().hosts);
  EXPECT_EQ(fault ? fault->status : 0, GetParam().isTaken ? 0U : 421U);
}

Request voteTo(std::string_view host, std::string_view origin = {}) {
  auto request = voteFrom(origin);
  request.host = host;
  return request;
}

const Hosts own{.names = {"localhost", "tally.example"}};
const Hosts wildcard{.names = {"localhost"}, .isForPagesOnly = true};
const Hosts certified{.names = {"localhost"},
                      .isCertified = [](const std::string& name) { return name == "c.example"; }};

INSTANTIATE_TEST_SUITE_P(
    Rows, VotesByHost,
    testing::Values(HostRow{"own", voteTo("TALLY.example:8787"), own, true},
                    HostRow{"loopback", voteTo("127.0.0.1:8787"), own, true},
                    HostRow{"loopbackByName", voteTo("localhost:8787"), own, true},
                    HostRow{"loopback6", voteTo("[::1]:8787"), own, true},
                    HostRow{"rebound", voteTo("evil.example:8787", "http://evil.example:8787"), own, false},
                    HostRow{"longer", voteTo("tally.example.evil"), own, false},
                    HostRow{"openBracket", voteTo("[::1"), own, false},
                    HostRow{"oldVersionWithoutHost", voteTo(""), own, true},
                    HostRow{"anyWhereNoneAreNamed", voteTo("evil.example"), {}, true},
                    HostRow{"appThroughAWildcard", voteTo("tally.example"), wildcard, true},
                    HostRow{"pageThroughAWildcard", voteTo("evil.example", "http://evil.example"), wildcard, false},
                    HostRow{"certified", voteTo("c.example"), certified, true},
                    HostRow{"notCertified", voteTo("d.example"), certified, false}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(Decide, asksForMannersOnlyWhereSomethingChanges) {
  auto request = voteFrom("https://foreign.example");
  request.target = "/get/a/feature1";
  EXPECT_TRUE(decide(request, {}) == Route{ReadCount{"a/feature1"}});
  request.target = "/add/a/feature1?delta=1";
  EXPECT_TRUE(std::holds_alternative<Refusal>(decide(request, {})));
  request.method = Method::other;
  request.origin = {};
  EXPECT_TRUE(decide(request, {}) == Route{onlyGetAndHead});
}

}  // namespace
}  // namespace mivo::tally
