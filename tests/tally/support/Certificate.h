// SPDX-License-Identifier: MIT
#pragma once
#include <chrono>
#include <string>

namespace mivo::tally::test {

struct CertificateFiles {
  std::string certificate, key;
};

/// Makes a certificate for "localhost" that signs itself, valid from now, and writes both as PEM.
void makeCertificate(const CertificateFiles& files, long serial, std::chrono::seconds valid = std::chrono::days{1});

}  // namespace mivo::tally::test
