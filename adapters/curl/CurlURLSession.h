// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <memory>

#include "mivo/model/Date.h"
#include "mivo/platform/URLSession.h"

namespace mivo::adapters {

/// GET requests over HTTP and HTTPS. Certificates are verified, the proxy is that of the environment (https_proxy,
/// no_proxy), redirects are followed to HTTPS addresses only. Connections are kept and shared by all requests of the
/// session. Thread: any; requests of several threads run beside each other.
class CurlURLSession final : public URLSession {
 public:
  struct Options {
    Duration timeLimit = std::chrono::seconds{60};   ///< for a whole request
    std::size_t sizeLimit = std::size_t{4} << 20;    ///< bytes of an answer
    std::filesystem::path certificateAuthorities{};  ///< a file of trusted ones instead of the system's
  };

  CurlURLSession();
  explicit CurlURLSession(Options options);
  /// No request may be under way.
  ~CurlURLSession() override;

  /// The request is made on the calling thread, and answered before this returns. The sentences of the errors begin
  /// with the address. A request ends within a moment of `stop`.
  void data(std::string_view url, StopToken stop, Completion<std::string> completion) const override;
  /// On a connection of its own, which ends with the answer.
  void dataSentOnce(std::string_view url, StopToken stop, Completion<std::string> completion) const override;

 private:
  std::string body(std::string_view url, const StopToken& stop, bool isSentOnce) const;

  struct Pool;
  std::unique_ptr<Pool> pool;
};

}  // namespace mivo::adapters
