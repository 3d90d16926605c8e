// SPDX-License-Identifier: MIT
#pragma once
#include <chrono>
#include <string>

namespace mivo::tally::test {

struct CertificateFiles {
  std::string certificate, key;
};

enum class KeyKind { ellipticCurve, rsa };

/// Makes a certificate for "localhost", "tally.example" and 198.51.100.7 that signs itself, valid from now, and writes
/// both as PEM.
void makeCertificate(const CertificateFiles& files, long serial, std::chrono::seconds valid = std::chrono::days{1},
                     KeyKind kind = KeyKind::ellipticCurve);

}  // namespace mivo::tally::test
