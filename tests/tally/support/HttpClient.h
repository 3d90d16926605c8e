// SPDX-License-Identifier: MIT
#pragma once
#include <openssl/ssl.h>

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace mivo::tally::test {

struct HttpAnswer {
  unsigned status = 0;
  std::map<std::string, std::string> headers;  // names in lower case
  std::string body;
};

/// A blocking connection to a port of this machine. Whatever goes wrong, also 30 seconds of silence, throws
/// std::runtime_error.
class HttpClient {
 public:
  enum class Security { plain, tls, tls12, tls12WithoutForwardSecrecy };

  /// A receive buffer of 0 bytes leaves its size to the system.
  explicit HttpClient(std::uint16_t port, Security security = Security::plain, int receiveBuffer = 0);
  ~HttpClient();
  HttpClient(const HttpClient&) = delete;
  HttpClient& operator=(const HttpClient&) = delete;

  /// Sends a GET on this connection and reads its answer; headers as "Name: value".
  HttpAnswer get(std::string_view target, const std::vector<std::string>& headers = {});
  HttpAnswer request(std::string_view method, std::string_view target, const std::vector<std::string>& headers = {});

  void send(std::string_view bytes);
  void finishSending();
  HttpAnswer receive(bool withBody = true);
  /// Everything up to the end of the connection, also where it is reset.
  std::string receiveAll();
  /// The serial number of the server's certificate.
  long certificateSerial() const;
  /// Whether the server goes along with a new handshake inside this connection.
  bool renegotiates();

 private:
  std::size_t receiveSome();
  std::string receiveHeader();

  int socket = -1;
  std::unique_ptr<SSL_CTX, decltype(&SSL_CTX_free)> context{nullptr, SSL_CTX_free};
  std::unique_ptr<SSL, decltype(&SSL_free)> tls{nullptr, SSL_free};
  std::string received;
};

/// The number in {"value":7}; throws for any other answer than 200.
std::int64_t countOf(const HttpAnswer& answer);

}  // namespace mivo::tally::test
