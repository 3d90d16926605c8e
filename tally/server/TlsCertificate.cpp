// SPDX-License-Identifier: MIT
#include "tally/server/TlsCertificate.h"

#include <openssl/x509v3.h>

#include <stdexcept>

namespace mivo::tally {
namespace {

template <class Body>
void naming(const std::filesystem::path& file, Body body) {
  try {
    body();
  } catch (const boost::system::system_error& error) {
    throw std::runtime_error(file.string() + ": " + error.code().message());
  }
}

}  // namespace

std::shared_ptr<ssl::context> loadCertificate(const std::filesystem::path& certificate,
                                              const std::filesystem::path& key) {
  auto context = std::make_shared<ssl::context>(ssl::context::tls_server);
  context->set_options(ssl::context::no_tlsv1 | ssl::context::no_tlsv1_1 | ssl::context::no_compression);
  // A new handshake inside a connection costs this side more than the other.
  SSL_CTX_set_options(context->native_handle(), SSL_OP_NO_RENEGOTIATION);
  // Of TLS 1.2 only what keeps the past secret where the key is stolen; all of TLS 1.3 does.
  if (SSL_CTX_set_cipher_list(context->native_handle(), "ECDHE+AESGCM:ECDHE+CHACHA20") != 1)
    throw std::runtime_error("this OpenSSL has none of the cipher suites for TLS 1.2");
  // An idle connection then keeps no buffers of OpenSSL's.
  SSL_CTX_set_mode(context->native_handle(), SSL_MODE_RELEASE_BUFFERS);
  // OpenSSL would ask the terminal for the passphrase of a key that has one, and the server would wait for it.
  context->set_password_callback([](std::size_t, ssl::context::password_purpose) { return std::string{}; });
  naming(certificate, [&] { context->use_certificate_chain_file(certificate.string()); });
  naming(key, [&] { context->use_private_key_file(key.string(), ssl::context::pem); });
  if (SSL_CTX_check_private_key(context->native_handle()) != 1)
    throw std::runtime_error(key.string() + ": does not belong to " + certificate.string());
  return context;
}

int daysLeft(const ssl::context& context) {
  auto* handle = const_cast<ssl::context&>(context).native_handle();  // asks, and changes nothing
  const auto* certificate = SSL_CTX_get0_certificate(handle);
  int days = 0;
  int seconds = 0;
  if (certificate != nullptr) ASN1_TIME_diff(&days, &seconds, nullptr, X509_get0_notAfter(certificate));
  return seconds < 0 ? days - 1 : days;
}

bool hasName(ssl::context& context, const std::string& name) {
  auto* certificate = SSL_CTX_get0_certificate(context.native_handle());
  if (certificate == nullptr) return false;
  return X509_check_host(certificate, name.data(), name.size(), 0, nullptr) == 1 ||
         X509_check_ip_asc(certificate, name.c_str(), 0) == 1;
}

}  // namespace mivo::tally
