// SPDX-License-Identifier: MIT
#pragma once
#include <filesystem>
#include <memory>
#include <string>

#include "tally/net/Asio.h"

namespace mivo::tally {

/// What the server proves itself with. Throws std::runtime_error with one sentence that names the file. A connection
/// that was made with it keeps what it needs: the context may be replaced at any time.
std::shared_ptr<ssl::context> loadCertificate(const std::filesystem::path& certificate,
                                              const std::filesystem::path& key);

/// Whole days until the certificate ends; negative once it has.
int daysLeft(const ssl::context& context);

/// Whether the certificate was given to a host of this name or address.
bool hasName(ssl::context& context, const std::string& name);

}  // namespace mivo::tally
