// SPDX-License-Identifier: MIT
#pragma once
#include <array>
#include <functional>
#include <memory>
#include <string>
#include <variant>

#include "tally/net/Asio.h"

namespace mivo::tally {

/// A TCP connection, bare or under TLS, read and written alike. One read and one write may be under way at a time; the
/// stream must outlive both.
class Stream {
 public:
  using Secure = ssl::stream<tcp::socket>;

  explicit Stream(tcp::socket socket) : either(std::move(socket)) {}
  Stream(tcp::socket socket, ssl::context& context) : either(std::in_place_type<Secure>, std::move(socket), context) {}

  bool isSecure() const { return std::holds_alternative<Secure>(either); }
  tcp::socket& socket();

  /// Goes on under TLS; nothing must be under way. This is where the memory that TLS needs is taken.
  void secure(ssl::context& context);
  /// Before the handshake: checks the peer's certificate against `host` and asks for that name.
  error_code expectHost(const std::string& host);

  template <class Done>
  void handshake(ssl::stream_base::handshake_type role, Done done) {
    std::get<Secure>(either).async_handshake(role, std::move(done));
  }

  template <class Done>
  void readSome(asio::mutable_buffer into, Done done) {
    std::visit([&](auto& stream) { stream.async_read_some(into, std::move(done)); }, either);
  }

  template <class Buffers, class Done>
  void write(const Buffers& buffers, Done done) {
    std::visit([&](auto& stream) { asio::async_write(stream, buffers, std::move(done)); }, either);
  }

  /// Hands over what the kernel takes without waiting, and says how much that was; nothing under TLS. The socket must
  /// be non-blocking.
  std::size_t writeNow(const std::array<asio::const_buffer, 2>& buffers, error_code& error) {
    if (isSecure()) return 0;
    auto& plain = std::get<tcp::socket>(either);
    // One buffer takes a cheaper call of the kernel than two.
    const bool isOne = buffers.back().size() == 0;
    const auto taken =
        isOne ? plain.write_some(asio::const_buffer{buffers.front()}, error) : plain.write_some(buffers, error);
    if (error == asio::error::would_block) error = {};
    return taken;
  }

  /// Says that nothing more will be sent; `done` is called when the peer was told.
  void finishSending(std::function<void()> done);
  void close();
  /// Closes without waiting for the peer to take what was sent: the kernel forgets it too.
  void abandon();

 private:
  std::variant<tcp::socket, Secure> either;
};

}  // namespace mivo::tally
