// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace mivo::tests {

/// What a server sends for one request, byte for byte, and what it does then.
struct HttpReply {
  enum class Then { keepsOpen, closes, hangs };
  std::string bytes;
  Then then = Then::keepsOpen;
};

HttpReply ok(std::string_view body);
HttpReply status(int code, std::string_view body = "");
HttpReply redirection(std::string_view location);
/// Announces the whole body and closes after half of it.
HttpReply cutOff(std::string_view body);
/// Takes the request and says nothing.
HttpReply silence();

/// A key and a certificate for 127.0.0.1, signed by itself.
struct TlsIdentity {
  std::string keyPem, certificatePem;
  /// Valid from and until that many seconds from now.
  static TlsIdentity make(long from, long until);
};

/// A server on a free port of the loopback that answers as the test says, a thread a connection.
class HttpServer {
 public:
  /// Gets the target of each request ("/get/a?b"); called from several threads.
  using Handler = std::function<HttpReply(const std::string& target)>;

  explicit HttpServer(Handler handler);
  HttpServer(Handler handler, const TlsIdentity& identity);
  /// Closes every connection.
  ~HttpServer();

  /// "http://127.0.0.1:40001", without a slash at the end.
  std::string address() const;
  /// The targets asked for so far.
  std::vector<std::string> targets() const;
  int connectionCount() const;

 private:
  struct Listener;
  std::unique_ptr<Listener> listener;
};

}  // namespace mivo::tests
