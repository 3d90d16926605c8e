// SPDX-License-Identifier: MIT
#pragma once

#include <openssl/ssl.h>

#include <memory>

#include "tests/http/HttpServer.h"

namespace mivo::tests {

template <auto release>
struct Free {
  template <class Handle>
  void operator()(Handle* handle) const {
    release(handle);
  }
};

std::unique_ptr<SSL_CTX, Free<SSL_CTX_free>> serverContext(const TlsIdentity& identity);

}  // namespace mivo::tests
