// SPDX-License-Identifier: MIT
#include "tests/tally_support/HttpClient.h"

#include <arpa/inet.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <stdexcept>

namespace mivo::tally::test {
namespace {

constexpr int patienceSeconds = 30;

[[noreturn]] void fail(const std::string& what) { throw std::runtime_error("client: " + what); }

int connectedTo(std::uint16_t port, int receiveBuffer) {
  const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  if (socket < 0) fail("no socket");
  const timeval patience{patienceSeconds, 0};
  ::setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
  ::setsockopt(socket, SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof patience);
  const int on = 1;
  ::setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
  if (receiveBuffer > 0) ::setsockopt(socket, SOL_SOCKET, SO_RCVBUF, &receiveBuffer, sizeof receiveBuffer);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(port);
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  if (::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) return socket;
  ::close(socket);
  fail("cannot connect");
}

std::string lowerCase(std::string text) {
  std::ranges::transform(text, text.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

HttpAnswer parseHeader(const std::string& header) {
  HttpAnswer answer;
  if (!header.starts_with("HTTP/1.1 ")) fail("not an answer: " + header);
  answer.status = static_cast<unsigned>(std::stoul(header.substr(9, 3)));
  auto begin = header.find("\r\n") + 2;
  while (begin < header.size()) {
    const auto end = header.find("\r\n", begin);
    const auto colon = header.find(": ", begin);
    answer.headers[lowerCase(header.substr(begin, colon - begin))] = header.substr(colon + 2, end - colon - 2);
    begin = end + 2;
  }
  return answer;
}

}  // namespace

HttpClient::HttpClient(std::uint16_t port, Security security, int receiveBuffer)
    : socket(connectedTo(port, receiveBuffer)) {
  if (security == Security::plain) return;
  context.reset(SSL_CTX_new(TLS_client_method()));
  if (security != Security::tls) SSL_CTX_set_max_proto_version(context.get(), TLS1_2_VERSION);
  if (security == Security::tls12WithoutForwardSecrecy) SSL_CTX_set_cipher_list(context.get(), "kRSA");
  tls.reset(SSL_new(context.get()));
  SSL_set_fd(tls.get(), socket);
  if (SSL_connect(tls.get()) == 1) return;
  ::close(socket);
  fail("no TLS");
}

HttpClient::~HttpClient() { ::close(socket); }

HttpAnswer HttpClient::get(std::string_view target, const std::vector<std::string>& headers) {
  return request("GET", target, headers);
}

HttpAnswer HttpClient::request(std::string_view method, std::string_view target,
                               const std::vector<std::string>& headers) {
  std::string text;
  text.append(method).append(" ").append(target).append(" HTTP/1.1\r\nHost: localhost\r\n");
  for (const auto& header : headers) text.append(header).append("\r\n");
  send(text.append("\r\n"));
  return receive(method != "HEAD");
}

void HttpClient::send(std::string_view bytes) {
  while (!bytes.empty()) {
    const auto sent = tls ? SSL_write(tls.get(), bytes.data(), static_cast<int>(bytes.size()))
                          : ::send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (sent <= 0) fail("cannot send");
    bytes.remove_prefix(static_cast<std::size_t>(sent));
  }
}

void HttpClient::finishSending() { ::shutdown(socket, SHUT_WR); }

std::size_t HttpClient::receiveSome() {
  std::array<char, 4096> bytes{};
  const auto size = tls ? SSL_read(tls.get(), bytes.data(), static_cast<int>(bytes.size()))
                        : ::recv(socket, bytes.data(), bytes.size(), 0);
  if (size < 0 && (errno == EAGAIN || errno == EWOULDBLOCK)) fail("no answer");
  if (size <= 0) return 0;
  received.append(bytes.data(), static_cast<std::size_t>(size));
  return static_cast<std::size_t>(size);
}

std::string HttpClient::receiveHeader() {
  for (;;) {
    if (const auto end = received.find("\r\n\r\n"); end != std::string::npos) {
      auto header = received.substr(0, end + 2);
      received.erase(0, end + 4);
      return header;
    }
    if (receiveSome() == 0) fail("cut off: \"" + received + '"');
  }
}

HttpAnswer HttpClient::receive(bool withBody) {
  auto answer = parseHeader(receiveHeader());
  const auto size = withBody ? std::stoul(answer.headers.at("content-length")) : 0;
  while (received.size() < size)
    if (receiveSome() == 0) fail("cut off in the body");
  answer.body = received.substr(0, size);
  received.erase(0, size);
  return answer;
}

std::string HttpClient::receiveAll() {
  while (receiveSome() > 0) {
  }
  return std::move(received);
}

long HttpClient::certificateSerial() const {
  const std::unique_ptr<X509, decltype(&X509_free)> certificate{SSL_get1_peer_certificate(tls.get()), X509_free};
  return ASN1_INTEGER_get(X509_get0_serialNumber(certificate.get()));
}

bool HttpClient::renegotiates() { return SSL_renegotiate(tls.get()) == 1 && SSL_do_handshake(tls.get()) == 1; }

std::int64_t countOf(const HttpAnswer& answer) {
  constexpr std::string_view before = "{\"value\":";
  if (answer.status != 200 || !answer.body.starts_with(before)) fail("no count: " + answer.body);
  return std::stoll(answer.body.substr(before.size()));
}

}  // namespace mivo::tally::test
