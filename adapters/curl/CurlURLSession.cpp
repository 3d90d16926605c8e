// SPDX-License-Identifier: MIT
#include "adapters/curl/CurlURLSession.h"

#include <curl/curl.h>

#include <array>
#include <mutex>
#include <utility>
#include <vector>

namespace mivo::adapters {
namespace {

constexpr long longestRedirection = 10;
constexpr std::size_t keptConnections = 8;
constexpr int longestWaitInMilliseconds = 1000;

// The library's handles are all void pointers to the compiler.
struct EndTransfer {
  void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
};
struct EndDriver {
  void operator()(CURLM* handle) const { curl_multi_cleanup(handle); }
};

/// One request at a time, and the connections that it leaves open for the next. The multi handle is there because it
/// can be woken from another thread, which a plain transfer cannot.
struct Connection {
  Connection() {
    if (!transfer || !driver) throw URLError{"there is not enough memory for a request"};
  }
  std::unique_ptr<CURLM, EndDriver> driver{curl_multi_init()};
  std::unique_ptr<CURL, EndTransfer> transfer{curl_easy_init()};  // goes first
};

struct Answer {
  std::string body;
  std::size_t sizeLimit;
  bool isTooLarge = false;
};

std::size_t receive(char* bytes, std::size_t, std::size_t count, void* destination) {
  Answer& answer = *static_cast<Answer*>(destination);
  answer.isTooLarge = answer.body.size() + count > answer.sizeLimit;
  if (answer.isTooLarge) return 0;
  answer.body.append(bytes, count);
  return count;
}

void initialize() {
  static const CURLcode result = curl_global_init(CURL_GLOBAL_DEFAULT);
  if (result != CURLE_OK) throw URLError{curl_easy_strerror(result)};
}

/// What the library says about a failure.
std::string reasonOf(CURLcode result, const char* details) {
  std::string reason = *details ? details : curl_easy_strerror(result);
  while (!reason.empty() && (reason.back() == '\n' || reason.back() == '.')) reason.pop_back();
  return reason;
}

/// Runs a prepared transfer to its end.
CURLcode perform(const Connection& connection, const StopToken& stop) {
  CURLM* const driver = connection.driver.get();
  const StopCallback wake{stop, [driver] { curl_multi_wakeup(driver); }};
  curl_multi_add_handle(driver, connection.transfer.get());
  CURLcode result = CURLE_ABORTED_BY_CALLBACK;
  for (int running = 1; running && !stop.stopRequested();) {
    if (curl_multi_perform(driver, &running) != CURLM_OK) break;
    if (running) curl_multi_poll(driver, nullptr, 0, longestWaitInMilliseconds, nullptr);
  }
  int left = 0;
  while (const CURLMsg* message = curl_multi_info_read(driver, &left))
    if (message->msg == CURLMSG_DONE) result = message->data.result;
  curl_multi_remove_handle(driver, connection.transfer.get());
  return result;
}

}  // namespace

struct CurlURLSession::Pool {
  Options options;
  std::mutex mutex;
  std::vector<Connection> idle;

  Connection taken() {
    const std::scoped_lock lock{mutex};
    if (idle.empty()) return {};
    Connection connection = std::move(idle.back());
    idle.pop_back();
    return connection;
  }

  void giveBack(Connection connection) {
    const std::scoped_lock lock{mutex};
    if (idle.size() < keptConnections) idle.push_back(std::move(connection));
  }

  void prepare(CURL* transfer, const std::string& url, Answer& answer, char* errorText, bool isSentOnce) const {
    curl_easy_reset(transfer);  // its connections stay
    curl_easy_setopt(transfer, CURLOPT_URL, url.c_str());
    curl_easy_setopt(transfer, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(transfer, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(transfer, CURLOPT_FOLLOWLOCATION, 1L);
    curl_easy_setopt(transfer, CURLOPT_REDIR_PROTOCOLS_STR, "https");
    curl_easy_setopt(transfer, CURLOPT_MAXREDIRS, longestRedirection);
    curl_easy_setopt(transfer, CURLOPT_TIMEOUT_MS,
                     static_cast<long>(std::chrono::ceil<std::chrono::milliseconds>(options.timeLimit).count()));
    curl_easy_setopt(transfer, CURLOPT_WRITEFUNCTION, &receive);
    curl_easy_setopt(transfer, CURLOPT_WRITEDATA, &answer);
    curl_easy_setopt(transfer, CURLOPT_ERRORBUFFER, errorText);
    // Where a kept connection breaks before the answer the library asks again on a new one: not with what counts.
    curl_easy_setopt(transfer, CURLOPT_FRESH_CONNECT, isSentOnce ? 1L : 0L);
    curl_easy_setopt(transfer, CURLOPT_FORBID_REUSE, isSentOnce ? 1L : 0L);
    if (!options.certificateAuthorities.empty())
      curl_easy_setopt(transfer, CURLOPT_CAINFO, options.certificateAuthorities.c_str());
  }
};

CurlURLSession::CurlURLSession() : CurlURLSession{Options{}} {}

CurlURLSession::CurlURLSession(Options options) : pool{std::make_unique<Pool>()} {
  initialize();
  pool->options = std::move(options);
}

CurlURLSession::~CurlURLSession() = default;

void CurlURLSession::data(std::string_view url, StopToken stop, Completion<std::string> completion) const {
  completion(answerOf([&] { return body(url, stop, false); }));
}

void CurlURLSession::dataSentOnce(std::string_view url, StopToken stop, Completion<std::string> completion) const {
  completion(answerOf([&] { return body(url, stop, true); }));
}

std::string CurlURLSession::body(std::string_view url, const StopToken& stop, bool isSentOnce) const {
  const std::string address{url};
  if (stop.stopRequested()) throw URLError{address + ": the request was stopped"};
  std::array<char, CURL_ERROR_SIZE> details{};
  Answer answer{{}, pool->options.sizeLimit};
  Connection connection = pool->taken();
  CURL* const transfer = connection.transfer.get();
  pool->prepare(transfer, address, answer, details.data(), isSentOnce);
  const CURLcode result = perform(connection, stop);
  long status = 0;
  curl_easy_getinfo(transfer, CURLINFO_RESPONSE_CODE, &status);
  curl_easy_setopt(transfer, CURLOPT_ERRORBUFFER, nullptr);  // it ends with this call
  pool->giveBack(std::move(connection));

  if (answer.isTooLarge)
    throw URLError{address + ": the answer is larger than " + std::to_string(answer.sizeLimit) + " bytes"};
  if (stop.stopRequested() && result != CURLE_OK) throw URLError{address + ": the request was stopped"};
  if (result != CURLE_OK) throw URLError{address + ": " + reasonOf(result, details.data())};
  if (status < 200 || status > 299) throw URLError{address + ": the server answered " + std::to_string(status)};
  return std::move(answer.body);
}

}  // namespace mivo::adapters
