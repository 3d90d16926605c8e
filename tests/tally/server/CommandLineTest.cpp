// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <boost/version.hpp>
#include <chrono>
#include <cstdlib>
#include <fstream>

#include "tally/server/Options.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/tally_support/HttpClient.h"
#include "tests/tally_support/TallyServer.h"

namespace mivo::tally::test {
namespace {

struct CommandRow {
  const char* name;
  std::vector<std::string> words;
  int exitCode;
  const char* says;
};
void PrintTo(const CommandRow& row, std::ostream* out) { *out << row.name; }

class Commands : public testing::TestWithParam<CommandRow> {};

TEST_P(Commands, endWithASentenceAndACode) {
  auto command = GetParam().words;
  command.insert(command.begin(), tallyProgram());
  ChildProcess process{command};
  EXPECT_EQ(process.wait(), GetParam().exitCode);
  EXPECT_THAT(process.output(), testing::HasSubstr(GetParam().says));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Commands,
    testing::Values(
        CommandRow{"help", {"--help"}, 0, "--votes-per-minute"},
        CommandRow{"unknownFlag", {"--nonsense"}, 2, "--nonsense"},
        CommandRow{"noNumber", {"--votes-per-minute", "many"}, 2, "--votes-per-minute"},
        CommandRow{"badListen", {"--listen", "8787"}, 2, "--listen: expected HOST:PORT or [IPV6]:PORT, found \"8787\""},
        CommandRow{"badStore", {"--store", "mysql://h"}, 2, "--store: expected sqlite:FILE"},
        CommandRow{
            "plainForOthers", {"--listen", "0.0.0.0:0"}, 2, "give --certificate and --key, or --allow-plain-http"},
        CommandRow{"plainForOthersByName", {"--listen", "tally.example:0"}, 2, "give --certificate and --key"},
        CommandRow{"adminForOthers", {"--admin", "0.0.0.0:0"}, 2, "--admin 0.0.0.0:0: others can reach it"},
        CommandRow{"blankBetweenNetworks", {"--trust-forwarded-for", "10.0.0.0/8", "192.0.2.0/24"}, 2, "192.0.2.0/24"},
        CommandRow{"keyAlone", {"--key", "k.pem"}, 2, "--certificate and --key are given together"},
        CommandRow{"noCertificate",
                   {"--listen", "127.0.0.1:0", "--store", "redis://127.0.0.1:1", "--certificate", "/no/c.pem", "--key",
                    "/no/k.pem"},
                   1,
                   "/no/c.pem: "},
        CommandRow{"noRoadmap",
                   {"--listen", "127.0.0.1:0", "--store", "redis://127.0.0.1:1", "--roadmap", "/no/r.json"},
                   1,
                   "/no/r.json: No such file or directory"},
        CommandRow{"noPage",
                   {"--listen", "127.0.0.1:0", "--store", "redis://127.0.0.1:1", "--page", "/no/page"},
                   1,
                   "mivo-tally: /no/page: No such file or directory"},
        CommandRow{"noFolder", {"--store", "sqlite:/proc/no/t.sqlite"}, 1, "/proc/no"},
        CommandRow{"exportOfNothing", {"export", "--store", "sqlite:/no/t.sqlite"}, 1, "/no/t.sqlite: unable to open"},
        CommandRow{"importOfNothing", {"import", "/no/c.jsonl"}, 1, "/no/c.jsonl: cannot be read"},
        CommandRow{"importOfAFolder", {"import", "/"}, 1, "/: cannot be read to its end"},
        CommandRow{
            "redisAway", {"export", "--store", "redis://127.0.0.1:1"}, 1, "redis://127.0.0.1:1/0: Connection refused"}),
    [](const auto& row) { return std::string{row.param.name}; });

struct VariableRow {
  const char* flag;
  const char* variable;
  const char* value;
};
void PrintTo(const VariableRow& row, std::ostream* out) { *out << row.variable; }

class Variables : public testing::TestWithParam<VariableRow> {};

TEST_P(Variables, areRefusedAsFlagsAre) {
  const auto& [flag, variable, value] = GetParam();
  ChildProcess fromFlag{{tallyProgram(), "--store=redis://127.0.0.1:1", std::string{flag} + '=' + value}};
  ChildProcess fromVariable{
      {"env", "MIVO_TALLY_STORE=redis://127.0.0.1:1", std::string{variable} + '=' + value, tallyProgram()}};
  EXPECT_EQ(fromFlag.wait(), 2);
  EXPECT_EQ(fromVariable.wait(), 2);
  EXPECT_THAT(fromFlag.output(), testing::HasSubstr(flag));
  EXPECT_THAT(fromVariable.output(), testing::HasSubstr(flag));
}

INSTANTIATE_TEST_SUITE_P(Rows, Variables,
                         testing::Values(VariableRow{"--listen", "MIVO_TALLY_LISTEN", "8787"},
                                         VariableRow{"--store", "MIVO_TALLY_STORE", "mysql://h"},
                                         VariableRow{"--certificate", "MIVO_TALLY_CERTIFICATE", "c.pem"},
                                         VariableRow{"--key", "MIVO_TALLY_KEY", "k.pem"},
                                         VariableRow{"--allow-plain-http", "MIVO_TALLY_ALLOW_PLAIN_HTTP", "maybe"},
                                         VariableRow{"--votes-per-minute", "MIVO_TALLY_VOTES_PER_MINUTE", "-1"},
                                         VariableRow{"--trust-forwarded-for", "MIVO_TALLY_TRUST_FORWARDED_FOR",
                                                     "maybe"},
                                         VariableRow{"--log-addresses", "MIVO_TALLY_LOG_ADDRESSES", "maybe"},
                                         VariableRow{"--request-seconds", "MIVO_TALLY_REQUEST_SECONDS", "0"},
                                         VariableRow{"--idle-seconds", "MIVO_TALLY_IDLE_SECONDS", "3601"},
                                         VariableRow{"--votes-per-day", "MIVO_TALLY_VOTES_PER_DAY", "1000001"},
                                         VariableRow{"--max-counters", "MIVO_TALLY_MAX_COUNTERS", "0"},
                                         VariableRow{"--max-handshakes", "MIVO_TALLY_MAX_HANDSHAKES", "1000001"},
                                         VariableRow{"--max-unsent-megabytes", "MIVO_TALLY_MAX_UNSENT_MEGABYTES", "0"},
                                         VariableRow{"--log-one-in", "MIVO_TALLY_LOG_ONE_IN", "0"},
                                         VariableRow{"--log-level", "MIVO_TALLY_LOG_LEVEL", "debug"},
                                         VariableRow{"--max-connections", "MIVO_TALLY_MAX_CONNECTIONS", "0"}),
                         [](const auto& row) { return std::string{row.param.variable}; });

// The least that each takes; only the store, which is away, keeps this from being well.
TEST(MivoTally, takesTheLeastOfEachLimit) {
  TallyServer server{"redis://127.0.0.1:1",
                     {"--max-connections",
                      "1",
                      "--max-connections-per-address",
                      "1",
                      "--max-handshakes",
                      "1",
                      "--max-counters",
                      "1",
                      "--max-unsent-megabytes",
                      "1",
                      "--request-seconds",
                      "1",
                      "--idle-seconds",
                      "1",
                      "--drain-seconds",
                      "1",
                      "--store-seconds",
                      "1",
                      "--probe-seconds",
                      "1",
                      "--log-one-in",
                      "1"}};
  EXPECT_EQ((HttpClient{server.port()}.get("/health").status), 503U);
}

ServeOptions optionsOf(std::vector<const char*> words) {
  words.insert(words.begin(), "mivo-tally");
  return std::get<ServeOptions>(parseCommandLine(static_cast<int>(words.size()), words.data()));
}

TEST(MivoTally, holdsFewerConnectionsUnderTls) {
  EXPECT_EQ(optionsOf({}).mostConnections, 20'000U);
  EXPECT_EQ(optionsOf({"--certificate", "c.pem", "--key", "k.pem"}).mostConnections, 5'000U);
  EXPECT_EQ(optionsOf({"--certificate", "c.pem", "--key", "k.pem", "--max-connections", "7000"}).mostConnections,
            7'000U);
}

TEST(MivoTally, takesAFlagBeforeAVariable) {
  ::setenv("MIVO_TALLY_REQUEST_SECONDS", "7", 1);
  EXPECT_EQ(optionsOf({}).requestTime, std::chrono::seconds{7});
  EXPECT_EQ(optionsOf({"--request-seconds", "9"}).requestTime, std::chrono::seconds{9});
  ::unsetenv("MIVO_TALLY_REQUEST_SECONDS");
}

TEST(MivoTally, looksAtAStoreThatFailsNoLessOftenThanAtAny) {
  EXPECT_EQ(optionsOf({"--probe-seconds", "1"}).storeTimes.probeAgain, std::chrono::seconds{1});
  EXPECT_EQ(optionsOf({"--probe-seconds", "60"}).storeTimes.probeAgain, std::chrono::seconds{2});
}

TEST(MivoTally, takesThePasswordOfRedisFromOnePlace) {
  const tests::TemporaryFolder folder;
  const auto file = folder.file("password");
  std::ofstream{file} << "secret\n";
  const std::string bare = "redis://127.0.0.1:1";
  const std::string full = "redis://:secret@127.0.0.1:1";
  const auto said = [](const std::string& store, const std::string& variable, const std::string& passwordFile) {
    std::vector<std::string> words{"env", "MIVO_TALLY_REDIS_PASSWORD=" + variable, tallyProgram(), "export", "--store",
                                   store};
    if (!passwordFile.empty()) words.insert(words.end(), {"--redis-password-file", passwordFile});
    ChildProcess process{words};
    process.wait();
    return process.output();
  };
  for (const auto& [store, variable, passwordFile] : std::vector<std::array<std::string, 3>>{
           {full, "secret", ""}, {full, "", file}, {bare, "secret", file}, {full, "secret", file}})
    EXPECT_THAT(said(store, variable, passwordFile), testing::HasSubstr("in --redis-password-file: in one"));
  for (const auto& [store, variable, passwordFile] :
       std::vector<std::array<std::string, 3>>{{full, "", ""}, {bare, "secret", ""}, {bare, "", file}, {bare, "", ""}})
    EXPECT_THAT(said(store, variable, passwordFile), testing::HasSubstr("Connection refused"));
}

TEST(MivoTally, namesItsVersionAndThoseOfItsLibraries) {
  ChildProcess plain{{tallyProgram(), "--version"}};
  EXPECT_EQ(plain.wait(), 0);
  EXPECT_THAT(plain.output(), testing::MatchesRegex("mivo-tally [0-9]+\\.[0-9]+\\.[0-9]+\n"));
  std::string boost = BOOST_LIB_VERSION;  // "1_74"
  std::ranges::replace(boost, '_', '.');
  ChildProcess verbose{{tallyProgram(), "--version", "--verbose"}};
  EXPECT_EQ(verbose.wait(), 0);
  EXPECT_THAT(verbose.output(),
              testing::MatchesRegex("mivo-tally [0-9.]+\n  Boost " + boost +
                                    "\\.[0-9]+\n  CLI11 2[0-9.]+\n  hiredis [0-9.]+\n"
                                    "  nlohmann-json 3[0-9.]+\n  OpenSSL 3[0-9.]+\n  SQLite 3[0-9.]+\n"
                                    "  SQLiteCpp [0-9.]+\n"));
}

TEST(MivoTally, exportsWhileItServesAndImportsAfterwards) {
  const tests::TemporaryFolder folder;
  const auto store = "sqlite:" + folder.file("tally.sqlite");
  const auto file = folder.file("counters.jsonl");
  TallyServer server{store};
  HttpClient client{server.port()};
  client.get("/add/app.example/feature12?delta=1");
  EXPECT_EQ((ChildProcess{{tallyProgram(), "export", "--store", store, "--to", file}}.wait()), 0);
  ChildProcess onAFullDisk{{"sh", "-c", "trap '' XFSZ; ulimit -f 0; exec \"$0\" export --store \"$1\" --to \"$2\"",
                            tallyProgram(), store, file}};
  EXPECT_EQ(onAFullDisk.wait(), 1);
  EXPECT_THAT(onAFullDisk.output(), testing::HasSubstr(file + ": cannot be written"));

  const std::vector<std::string> import{tallyProgram(), "import", file, "--store"};
  const auto importInto = [&](const std::string& address) {
    auto command = import;
    command.push_back(address);
    ChildProcess process{command};
    return std::pair{process.wait(), process.output()};
  };
  EXPECT_THAT(importInto(store), testing::Pair(1, testing::HasSubstr("another mivo-tally is using it")));
  const auto other = "sqlite:" + folder.file("other.sqlite");
  EXPECT_EQ(importInto(other), (std::pair{0, std::string{"1 counters imported, 0 were there already\n"}}));
  EXPECT_EQ(importInto(other), (std::pair{0, std::string{"0 counters imported, 1 were there already\n"}}));

  std::ofstream{file} << R"({"counter":"app.example/feature12","value":9})" << '\n';
  const auto [code, output] = importInto(other);
  EXPECT_EQ(code, 1);
  EXPECT_THAT(output, testing::HasSubstr("app.example/feature12: " + other + " counts 1, the file 9"));
}

}  // namespace
}  // namespace mivo::tally::test
