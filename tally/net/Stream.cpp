// SPDX-License-Identifier: MIT
#include "tally/net/Stream.h"

namespace mivo::tally {

tcp::socket& Stream::socket() {
  if (auto* secure = std::get_if<Secure>(&either)) return secure->next_layer();
  return std::get<tcp::socket>(either);
}

void Stream::secure(ssl::context& context) {
  auto socket = std::move(std::get<tcp::socket>(either));
  either.emplace<Secure>(std::move(socket), context);
}

error_code Stream::expectHost(const std::string& host) {
  auto& secure = std::get<Secure>(either);
  error_code error;
  if (secure.set_verify_mode(ssl::verify_peer, error)) return error;
  if (secure.set_verify_callback(ssl::host_name_verification(host), error)) return error;
  error_code notAnAddress;
  static_cast<void>(asio::ip::make_address(host, notAnAddress));
  // A server name is sent for names only: RFC 6066 has no form for addresses.
  if (notAnAddress && SSL_set_tlsext_host_name(secure.native_handle(), host.c_str()) != 1)
    return asio::error::invalid_argument;
  return {};
}

void Stream::finishSending(std::function<void()> done) {
  if (auto* secure = std::get_if<Secure>(&either)) {
    secure->async_shutdown([done = std::move(done)](error_code) { done(); });
    return;
  }
  error_code ignored;
  static_cast<void>(socket().shutdown(tcp::socket::shutdown_send, ignored));
  done();
}

void Stream::close() {
  error_code ignored;
  static_cast<void>(socket().close(ignored));
}

void Stream::abandon() {
  error_code ignored;
  static_cast<void>(socket().set_option(tcp::socket::linger{true, 0}, ignored));
  close();
}

}  // namespace mivo::tally
