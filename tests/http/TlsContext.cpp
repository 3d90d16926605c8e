// SPDX-License-Identifier: MIT
#include "tests/http/TlsContext.h"

#include <openssl/ec.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/x509v3.h>

#include <stdexcept>
#include <string>

namespace mivo::tests {
namespace {

using Bytes = std::unique_ptr<BIO, Free<BIO_free_all>>;
using Certificate = std::unique_ptr<X509, Free<X509_free>>;
using Key = std::unique_ptr<EVP_PKEY, Free<EVP_PKEY_free>>;

void require(bool succeeded) {
  if (!succeeded) throw std::runtime_error{"OpenSSL refused"};
}

std::string textOf(BIO* bytes) {
  char* data = nullptr;
  const long size = BIO_get_mem_data(bytes, &data);
  return {data, static_cast<std::size_t>(size)};
}

void addExtension(X509* certificate, int kind, const char* value) {
  X509V3_CTX context;
  X509V3_set_ctx(&context, certificate, certificate, nullptr, nullptr, 0);
  const std::unique_ptr<X509_EXTENSION, Free<X509_EXTENSION_free>> extension{
      X509V3_EXT_conf_nid(nullptr, &context, kind, value)};
  require(extension && X509_add_ext(certificate, extension.get(), -1) == 1);
}

}  // namespace

TlsIdentity TlsIdentity::make(long from, long until) {
  const Key key{EVP_EC_gen("P-256")};
  const Certificate certificate{X509_new()};
  require(key && certificate);
  X509* const made = certificate.get();
  X509_set_version(made, X509_VERSION_3);
  ASN1_INTEGER_set(X509_get_serialNumber(made), 1);
  X509_gmtime_adj(X509_getm_notBefore(made), from);
  X509_gmtime_adj(X509_getm_notAfter(made), until);
  X509_NAME* const name = X509_get_subject_name(made);
  const auto* const host = reinterpret_cast<const unsigned char*>("127.0.0.1");
  require(X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC, host, -1, -1, 0) == 1);
  require(X509_set_issuer_name(made, name) == 1 && X509_set_pubkey(made, key.get()) == 1);
  addExtension(made, NID_basic_constraints, "critical,CA:TRUE");
  addExtension(made, NID_subject_alt_name, "IP:127.0.0.1");
  require(X509_sign(made, key.get(), EVP_sha256()) > 0);

  const Bytes keyBytes{BIO_new(BIO_s_mem())}, certificateBytes{BIO_new(BIO_s_mem())};
  require(PEM_write_bio_PrivateKey(keyBytes.get(), key.get(), nullptr, nullptr, 0, nullptr, nullptr) == 1);
  require(PEM_write_bio_X509(certificateBytes.get(), made) == 1);
  return {textOf(keyBytes.get()), textOf(certificateBytes.get())};
}

std::unique_ptr<SSL_CTX, Free<SSL_CTX_free>> serverContext(const TlsIdentity& identity) {
  std::unique_ptr<SSL_CTX, Free<SSL_CTX_free>> context{SSL_CTX_new(TLS_server_method())};
  const auto bytes = [](const std::string& text) {
    return Bytes{BIO_new_mem_buf(text.data(), static_cast<int>(text.size()))};
  };
  const Key key{PEM_read_bio_PrivateKey(bytes(identity.keyPem).get(), nullptr, nullptr, nullptr)};
  const Certificate certificate{PEM_read_bio_X509(bytes(identity.certificatePem).get(), nullptr, nullptr, nullptr)};
  require(context && key && certificate && SSL_CTX_use_certificate(context.get(), certificate.get()) == 1 &&
          SSL_CTX_use_PrivateKey(context.get(), key.get()) == 1);
  return context;
}

}  // namespace mivo::tests
