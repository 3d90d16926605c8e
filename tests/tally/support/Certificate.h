// SPDX-License-Identifier: MIT
#pragma once
#include <string>

namespace mivo::tally::test {

struct CertificateFiles {
  std::string certificate, key;
};

/// Makes a certificate for "localhost" that signs itself, valid from now for a day, and writes both as PEM.
void makeCertificate(const CertificateFiles& files, long serial);

}  // namespace mivo::tally::test
