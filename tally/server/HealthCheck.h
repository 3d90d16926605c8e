// SPDX-License-Identifier: MIT
#pragma once
#include "tally/server/Options.h"

namespace mivo::tally {

/// Asks the server of this machine for /health and writes a line about it, for containers, which have no other client.
/// Whether it said 200 within five seconds. The certificate is not looked at.
bool isHealthy(const HealthOptions& options);

}  // namespace mivo::tally
