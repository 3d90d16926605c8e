// SPDX-License-Identifier: MIT
#include "tally/server/Options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cctype>
#include <fstream>
#include <iostream>
#include <map>
#include <stdexcept>

#include "adapters/manual/ManualPage.h"
#include "tally/net/Asio.h"
#include "tally/request/CounterName.h"
#include "tally/server/Listener.h"
#include "tally/server/Variable.h"
#include "tally/server/Versions.h"

namespace mivo::tally {
namespace {

constexpr int wrongUsage = 2;
constexpr std::size_t tlsConnections = 5'000;

// systemd names a state folder; a person's own data lies where the desktop's rules put it.
std::filesystem::path defaultDatabase() {
  constexpr auto name = "tally.sqlite";
  if (const auto state = variable("STATE_DIRECTORY"); !state.empty()) return std::filesystem::path{state} / name;
  if (const auto data = variable("XDG_DATA_HOME"); !data.empty()) return std::filesystem::path{data} / "mivo" / name;
  if (const auto home = variable("HOME"); !home.empty())
    return std::filesystem::path{home} / ".local" / "share" / "mivo" / name;
  return name;
}

bool isLoopback(const std::string& host) {
  error_code error;
  const auto address = asio::ip::make_address(host, error);
  return error ? host == "localhost" : address.is_loopback();
}

void check(const ServeOptions& options) {
  if (options.certificate.empty() != options.key.empty())
    throw std::invalid_argument("--certificate and --key are given together");
  if (options.admin && !options.allowPlainHttp && !isLoopback(options.admin->host))
    throw std::invalid_argument("--admin " + describe(*options.admin) +
                                ": others can reach it, so give --allow-plain-http where the network is your own");
  if (options.certificate.empty() && !options.allowPlainHttp && !isLoopback(options.listen.host))
    throw std::invalid_argument("--listen " + describe(options.listen) +
                                ": others can reach it, so give --certificate and --key, or --allow-plain-http where a "
                                "balancer in front does TLS");
}

// "debug" and the like would promise lines that there are none of.
const std::map<std::string, LogDetail::Level> logLevels{
    {"info", LogDetail::Level::info}, {"warning", LogDetail::Level::warning}, {"error", LogDetail::Level::error}};

struct Texts {
  explicit Texts(const ServeOptions& usual)
      : listen{describe(usual.listen)},
        requestSeconds{usual.requestTime.count()},
        idleSeconds{usual.idleTime.count()},
        drainSeconds{usual.drainTime.count()},
        storeSeconds{usual.storeTimes.answer.count()},
        probeSeconds{usual.storeTimes.probe.count()},
        mostUnsentMegabytes{usual.mostUnsentBytes >> 20U} {}

  std::string listen;
  std::string store = "sqlite:" + defaultDatabase().string();
  std::string trustedProxies = "0";
  std::string admin;
  std::filesystem::path redisPassword;
  std::int64_t requestSeconds;
  std::int64_t idleSeconds;
  std::int64_t drainSeconds;
  std::int64_t storeSeconds;
  std::int64_t probeSeconds;
  std::size_t mostConnections = 0;
  std::size_t mostUnsentMegabytes;
};

CLI::Option* addSeconds(CLI::App& app, const std::string& flag, std::int64_t& value, const std::string& help) {
  return app.add_option(flag, value, help)->check(CLI::Range(1, 3600))->type_name("N")->capture_default_str();
}

template <class Number>
CLI::Option* addNumber(CLI::App& app, const std::string& flag, Number& value, const std::string& help) {
  return app.add_option(flag, value, help)->type_name("N")->capture_default_str();
}

void addAddresses(CLI::App& app, ServeOptions& options, Texts& texts) {
  app.add_option("--listen", texts.listen, "Address and port to answer on; port 0 takes a free one")
      ->type_name("HOST:PORT")
      ->capture_default_str();
  app.add_option("--admin", texts.admin, "Answer /metrics and /health there, in plain HTTP, and nowhere else")
      ->type_name("HOST:PORT");
  app.add_option("--certificate", options.certificate, "Certificate chain (PEM); read again on SIGHUP")
      ->type_name("FILE");
  app.add_option("--key", options.key, "Its private key (PEM)")->type_name("FILE");
  app.add_flag("--allow-plain-http", options.allowPlainHttp, "Answer without TLS beyond this machine");
  app.add_option("--trust-forwarded-for", texts.trustedProxies,
                 "Networks of the balancers whose X-Forwarded-For is believed, 10.0.0.0/8,...; alone: private ones")
      ->type_name("CIDR")
      ->expected(0, 1);
  app.add_option(
         "--host", options.hosts,
         "A name that this server answers to, for votes; repeatable. Without: loopback, the address of --listen "
         "and the certificate's names")
      ->type_name("NAME")
      ->delimiter(',');
  app.add_option("--allow-origin", options.allowedOrigins, "A web origin whose pages may vote; repeatable; * for all")
      ->type_name("ORIGIN")
      ->delimiter(',');
}

void addStore(CLI::App& app, ServeOptions& options, Texts& texts) {
  app.add_option("--store", texts.store, "sqlite:FILE, redis://[USER:PASSWORD@]HOST:PORT/DB, or rediss:// for TLS")
      ->type_name("ADDRESS")
      ->capture_default_str();
  app.add_option("--redis-password-file", texts.redisPassword,
                 "Holds the password of --store; the variable MIVO_TALLY_REDIS_PASSWORD may too")
      ->type_name("FILE");
  app.add_option("--roadmap", options.roadmap, "The list served as /data/roadmap-mivo.json")->type_name("FILE");
  app.add_option(
         "--page", options.page,
         "Serve the files of this folder too: the page for browsers, which then votes here; read again on SIGHUP")
      ->type_name("FOLDER");
  app.add_flag("--any-counter", options.countsAny, "Take votes for features that the roadmap does not list");
  addNumber(app, "--max-counters", options.mostCounters,
            "Counters kept; votes for a further one are refused. In Redis all keys of the database count")
      ->check(CLI::Range(std::int64_t{1}, std::int64_t{1} << 40));
  addSeconds(app, "--store-seconds", texts.storeSeconds, "Time for what is asked of the store");
  addSeconds(app, "--probe-seconds", texts.probeSeconds, "Time without a vote, until a write shows that one is kept");
}

void addLog(CLI::App& app, ServeOptions& options) {
  app.add_flag("--log-addresses", options.logAddresses, "Write clients' addresses into the log");
  app.add_option("--log-level", options.logDetail.level,
                 "Requests that are logged: info all, warning those refused or failed, error those failed")
      ->transform(CLI::CheckedTransformer(logLevels))
      ->type_name("LEVEL");
  addNumber(app, "--log-one-in", options.logDetail.oneIn, "Log one of so many requests that went well")
      ->check(CLI::Range(1U, 1'000'000U));
}

// What a client may cost.
void addLimits(CLI::App& app, ServeOptions& options, Texts& texts) {
  const auto votes = CLI::Range(0U, 1'000'000U);
  const auto count = CLI::Range(1, 1'000'000);
  addNumber(app, "--votes-per-minute", options.votesPerMinute, "Votes taken from one address; 0 takes all")
      ->check(votes);
  addNumber(app, "--votes-per-day", options.votesPerDay,
            "Votes up, and down, that one address has for a feature a day; 0 takes all")
      ->check(votes);
  addSeconds(app, "--request-seconds", texts.requestSeconds,
             "Time to send a request, and to take its answer; one more for each 8 KB of that");
  addSeconds(app, "--idle-seconds", texts.idleSeconds, "Time between requests");
  addSeconds(app, "--drain-seconds", texts.drainSeconds, "On SIGTERM, time for what clients have sent already");
  app.add_option("--max-connections", texts.mostConnections,
                 "Connections held; beyond, the one that was silent longest is dropped [20000, under TLS 5000]")
      ->check(count)
      ->type_name("N");
  addNumber(app, "--max-connections-per-address", options.mostConnectionsOfAnAddress,
            "Connections of one address; further ones are refused; 0 takes all");
  addNumber(app, "--max-handshakes", options.mostHandshakes, "TLS handshakes under way; beyond, the oldest is dropped")
      ->check(count);
  addNumber(app, "--handshakes-per-minute", options.handshakesPerMinute, "TLS handshakes of one address; 0 takes all");
  addNumber(app, "--max-unsent-megabytes", texts.mostUnsentMegabytes,
            "Answers that clients do not take; beyond, the connection that was slow longest is dropped")
      ->check(CLI::Range(1, 1024));
}

// A service's settings stand in its environment: --votes-per-minute is MIVO_TALLY_VOTES_PER_MINUTE too.
void addVariables(CLI::App& app) {
  for (auto* option : app.get_options()) {
    if (option == app.get_help_ptr()) continue;
    auto name = "MIVO_TALLY_" + option->get_lnames().front();
    std::ranges::transform(name, name.begin(),
                           [](unsigned char c) { return c == '-' ? '_' : static_cast<char>(std::toupper(c)); });
    option->envname(name);
  }
}

// Some releases of the parser pass over a variable whose value they refuse: read as a flag it is refused aloud.
void checkVariables(CLI::App& app) {
  for (const auto* option : app.get_options()) {
    const auto value = option->count() == 0 ? variable(option->get_envname().c_str()) : std::string{};
    if (!value.empty()) app.parse(std::vector<std::string>{"--" + option->get_lnames().front() + '=' + value});
  }
}

// The value was a switch once; without a value the text is empty, or "true".
bool isSwitch(const std::string& text) {
  return text.empty() || text == "1" || text == "true" || text == "yes" || text == "on";
}
bool isSwitchedOff(const std::string& text) { return text == "0" || text == "false" || text == "no" || text == "off"; }

Networks parseNetworks(std::string_view text) {
  Networks networks;
  while (!text.empty()) {
    const auto comma = text.find(',');
    const auto network = parseNetwork(text.substr(0, comma));
    if (!network)
      throw std::invalid_argument(
          "--trust-forwarded-for: expected networks such as 10.0.0.0/8,2001:db8::/32, found \"" +
          std::string{text.substr(0, comma)} + '"');
    networks.push_back(*network);
    text = comma == std::string_view::npos ? std::string_view{} : text.substr(comma + 1);
  }
  return networks;
}

Endpoint endpointOf(const char* flag, const std::string& text) {
  const auto endpoint = parseEndpoint(text);
  if (!endpoint)
    throw std::invalid_argument(flag + std::string{": expected HOST:PORT or [IPV6]:PORT, found \""} + text + '"');
  return *endpoint;
}

std::string firstLineOf(const std::filesystem::path& file) {
  std::ifstream in{file};
  std::string line;
  if (!std::getline(in, line) || line.empty())
    throw std::invalid_argument("--redis-password-file " + file.string() + ": expected a line with the password");
  return line;
}

// A password comes from one place, so that nobody wonders which of two is used.
StoreAddress storeOf(const Texts& texts) {
  auto store = parseStoreAddress(texts.store);
  auto* redis = std::get_if<RedisAddress>(&store);
  if (redis == nullptr) return store;
  auto password = variable("MIVO_TALLY_REDIS_PASSWORD");
  const bool hasFile = !texts.redisPassword.empty();
  if (int{!redis->password.empty()} + int{!password.empty()} + int{hasFile} > 1)
    throw std::invalid_argument(
        "the password of Redis is given in --store, in MIVO_TALLY_REDIS_PASSWORD or in --redis-password-file: in one");
  if (hasFile) password = firstLineOf(texts.redisPassword);
  if (!password.empty()) redis->password = std::move(password);
  return store;
}

bool showsPassword(int argc, const char* const* argv) {
  return std::any_of(argv, argv + argc, [](std::string_view word) {
    const auto holds = [word](std::string_view part) { return word.find(part) != std::string_view::npos; };
    return holds("redis") && holds("://") && holds("@");
  });
}

// A server that listens everywhere is asked on this machine.
HealthOptions healthOf(const ServeOptions& options, const Texts& texts) {
  const bool isAdmins = !texts.admin.empty();
  auto endpoint = isAdmins ? endpointOf("--admin", texts.admin) : endpointOf("--listen", texts.listen);
  error_code error;
  const auto address = asio::ip::make_address(endpoint.host, error);
  if (!error && address.is_unspecified()) endpoint.host = address.is_v4() ? "127.0.0.1" : "::1";
  return {std::move(endpoint), !isAdmins && !options.certificate.empty()};
}

ServeOptions finished(ServeOptions options, const Texts& texts) {
  options.listen = endpointOf("--listen", texts.listen);
  if (!texts.admin.empty()) options.admin = endpointOf("--admin", texts.admin);
  if (const auto inherited = inheritedSocket()) {
    options.inherited = inherited->descriptor;
    options.listen = inherited->endpoint;
  }
  options.store = storeOf(texts);
  options.trustsByOldName = isSwitch(texts.trustedProxies);
  if (options.trustsByOldName) {
    options.trustedProxies = privateNetworks();
  } else if (!isSwitchedOff(texts.trustedProxies)) {
    options.trustedProxies = parseNetworks(texts.trustedProxies);
  }
  options.requestTime = std::chrono::seconds{texts.requestSeconds};
  options.idleTime = std::chrono::seconds{texts.idleSeconds};
  options.drainTime = std::chrono::seconds{texts.drainSeconds};
  options.storeTimes.answer = std::chrono::seconds{texts.storeSeconds};
  options.storeTimes.probe = std::chrono::seconds{texts.probeSeconds};
  options.storeTimes.probeAgain = std::min(options.storeTimes.probeAgain, options.storeTimes.probe);
  options.mostUnsentBytes = texts.mostUnsentMegabytes << 20U;
  if (!options.certificate.empty()) options.mostConnections = tlsConnections;
  if (texts.mostConnections > 0) options.mostConnections = texts.mostConnections;
  check(options);
  return options;
}

std::string checkedName(std::string counter) {
  if (const auto fault = faultOfCounterName(counter)) throw std::invalid_argument(counter + ": " + std::string{*fault});
  return counter;
}

Exit told(const std::string& text) {
  std::cout << text;
  return Exit{};
}

// What the command line is read into.
class Words {
 public:
  explicit Words(CLI::App& app) {
    addAddresses(app, serve, texts);
    addStore(app, serve, texts);
    addLimits(app, serve, texts);
    addLog(app, serve);
    addVariables(app);
    app.add_flag("--version", tellsVersion, "Name the version and end");
    app.add_flag("--verbose", tellsLibraries, "With --version: the libraries' versions too");
    addCommands(app);
    adapters::addManualPage(app, {MIVO_VERSION, {{defaultDatabase(), "The counters, where no other store is named"}}});
    app.footer(
        "Examples:\n  mivo-tally\n  mivo-tally --store redis://localhost/0 --roadmap roadmap.json\n"
        "  mivo-tally export --store sqlite:tally.sqlite > counters.jsonl\n"
        "  mivo-tally import --store redis://localhost/0 counters.jsonl\n"
        "  mivo-tally correct --store sqlite:tally.sqlite app.example/feature12 40\n\n"
        "Exit status: 0 done, or well; 1 something stood against it, or the server is ill; 2 the command line did.");
  }

  Command command() {
    if (exporting->parsed()) return ExportOptions{storeOf(texts), exported.to};
    if (importing->parsed()) return ImportOptions{storeOf(texts), imported.from, imported.replace};
    if (correcting->parsed())
      return CorrectOptions{storeOf(texts), checkedName(std::move(corrected.counter)), corrected.value};
    if (checking->parsed()) return healthOf(serve, texts);
    return finished(serve, texts);
  }

  ServeOptions serve;
  bool tellsVersion = false;
  bool tellsLibraries = false;

 private:
  void addCommands(CLI::App& app) {
    exporting = app.add_subcommand("export", "Write every counter of --store, one JSON object a line");
    exporting->add_option("--to", exported.to, "Where to; standard output without it")->type_name("FILE");
    importing = app.add_subcommand("import", "Bring counters that export wrote into --store");
    importing->add_option("FILE", imported.from, "What export wrote")->required();
    importing->add_flag("--replace", imported.replace, "Overwrite counters that have another count");
    correcting = app.add_subcommand("correct", "Set one counter of --store, also while a server has it");
    correcting->add_option("NAME", corrected.counter, "NAMESPACE/featureID")->required();
    correcting->add_option("VALUE", corrected.value, "Its count from now on")->required();
    checking = app.add_subcommand("health", "Ask the server at --admin, or --listen, whether it is well: 0 if so");
    for (auto* each : {exporting, importing, correcting, checking}) each->fallthrough();
  }

  Texts texts{serve};
  ExportOptions exported;
  ImportOptions imported;
  CorrectOptions corrected;
  CLI::App* exporting = nullptr;
  CLI::App* importing = nullptr;
  CLI::App* correcting = nullptr;
  CLI::App* checking = nullptr;
};

}  // namespace

Command parseCommandLine(int argc, const char* const* argv) {
  CLI::App app{
      "mivo-tally: counts votes for the features of a roadmap.\n"
      "Without a command it serves; without flags, on this machine alone, into a SQLite file.",
      "mivo-tally"};
  Words words{app};
  try {
    app.parse(argc, argv);
    if (words.tellsVersion) return told(versionText(words.tellsLibraries));
    checkVariables(app);
    words.serve.showsPassword = showsPassword(argc, argv);
    return words.command();
  } catch (const CLI::ParseError& error) {
    return Exit{app.exit(error) == 0 ? 0 : wrongUsage};
  } catch (const std::invalid_argument& error) {
    std::cerr << "mivo-tally: " << error.what() << '\n';
    return Exit{wrongUsage};
  }
}

}  // namespace mivo::tally
