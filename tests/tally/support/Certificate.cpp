// SPDX-License-Identifier: MIT
#include "tests/tally_support/Certificate.h"

#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rsa.h>
#include <openssl/x509v3.h>

#include <cstdio>
#include <memory>
#include <stdexcept>

namespace mivo::tally::test {
namespace {

template <class T, auto release>
using Owned = std::unique_ptr<T, decltype([](T* object) { release(object); })>;

using File = Owned<std::FILE, std::fclose>;

File openForWriting(const std::string& path) {
  File file{std::fopen(path.c_str(), "w")};
  if (!file) throw std::runtime_error(path + ": cannot be written");
  return file;
}

void nameLocalhost(X509* certificate) {
  auto* name = X509_get_subject_name(certificate);
  X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC, reinterpret_cast<const unsigned char*>("localhost"), -1, -1, 0);
  X509_set_issuer_name(certificate, name);
  const Owned<X509_EXTENSION, X509_EXTENSION_free> names{X509V3_EXT_conf_nid(
      nullptr, nullptr, NID_subject_alt_name, "DNS:localhost,DNS:tally.example,IP:127.0.0.1,IP:198.51.100.7")};
  X509_add_ext(certificate, names.get(), -1);
}

}  // namespace

void makeCertificate(const CertificateFiles& files, long serial, std::chrono::seconds valid, KeyKind kind) {
  constexpr std::size_t rsaBits = 2048;
  const Owned<EVP_PKEY, EVP_PKEY_free> key{kind == KeyKind::rsa ? EVP_RSA_gen(rsaBits) : EVP_EC_gen("P-256")};
  const Owned<X509, X509_free> certificate{X509_new()};
  X509_set_version(certificate.get(), X509_VERSION_3);
  ASN1_INTEGER_set(X509_get_serialNumber(certificate.get()), serial);
  X509_gmtime_adj(X509_getm_notBefore(certificate.get()), 0);
  X509_gmtime_adj(X509_getm_notAfter(certificate.get()), valid.count());
  X509_set_pubkey(certificate.get(), key.get());
  nameLocalhost(certificate.get());
  if (X509_sign(certificate.get(), key.get(), EVP_sha256()) == 0) throw std::runtime_error("cannot sign");
  PEM_write_X509(openForWriting(files.certificate).get(), certificate.get());
  PEM_write_PrivateKey(openForWriting(files.key).get(), key.get(), nullptr, nullptr, 0, nullptr, nullptr);
}

}  // namespace mivo::tally::test
