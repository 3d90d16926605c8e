// SPDX-License-Identifier: MIT
#pragma once
#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "tally/net/Endpoint.h"
#include "tally/net/Network.h"
#include "tally/request/Manners.h"
#include "tally/server/Log.h"
#include "tally/store/CounterStore.h"
#include "tally/store/StoreAddress.h"

namespace mivo::tally {

struct ServeOptions {
  Endpoint listen{"127.0.0.1", "8787"};
  std::optional<int> inherited = {};   // a socket that the service manager opened: `listen` is its address
  std::optional<Endpoint> admin = {};  // where /metrics and /health are then answered, and nowhere else
  StoreAddress store;
  StoreTimes storeTimes;
  std::filesystem::path roadmap;      // empty: the example that is built in
  std::filesystem::path page;         // a folder whose files are served too; empty: none
  std::filesystem::path certificate;  // empty: plain HTTP
  std::filesystem::path key;
  bool allowPlainHttp = false;
  unsigned votesPerMinute = 60;    // from one address; 0: as many as it likes
  unsigned votesPerDay = 20;       // up, and down, from one address for one feature; 0: as many as it likes
  Networks trustedProxies;         // whose X-Forwarded-For is believed
  bool trustsByOldName = false;    // the flag was given without networks, as older servers took it
  std::vector<std::string> hosts;  // names that it answers to; empty: those that it knows itself
  bool logAddresses = false;
  LogDetail logDetail;
  bool showsPassword = false;  // on the command line, which everyone on the machine can read
  AllowedOrigins allowedOrigins;
  std::chrono::seconds requestTime{10};  // from a request's first byte to its last, and to take a small answer
  std::chrono::seconds idleTime{60};     // between two requests
  std::chrono::seconds drainTime{2};     // for the next request of a connection that is kept, once told to stop
  std::size_t mostConnections = 20'000;
  std::size_t mostConnectionsOfAnAddress = 256;  // 0: as many as it likes
  std::size_t mostHandshakes = 512;              // begun and not ended
  unsigned handshakesPerMinute = 300;            // of one address; 0: as many as it likes
  std::size_t mostUnsentBytes = 64 << 20;        // of all clients together
  bool countsAny = false;                        // also what the roadmap does not list
  std::int64_t mostCounters = 100'000;
};

struct ExportOptions {
  StoreAddress store;
  std::filesystem::path to;  // empty: standard output
};

struct ImportOptions {
  StoreAddress store;
  std::filesystem::path from;
  bool replace = false;
};

struct CorrectOptions {
  StoreAddress store;
  std::string counter;
  std::int64_t value = 0;
};

/// Where the server of this machine answers /health.
struct HealthOptions {
  Endpoint endpoint;
  bool isSecure = false;
};

struct Exit {
  int code = 0;
};

using Command = std::variant<Exit, ServeOptions, ExportOptions, ImportOptions, CorrectOptions, HealthOptions>;

/// Reads flags and MIVO_TALLY_* variables. What was only asked to be explained, or is wrong, has been printed; the
/// program then ends with the exit code (2 for wrong usage).
Command parseCommandLine(int argc, const char* const* argv);

}  // namespace mivo::tally
