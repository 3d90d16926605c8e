// SPDX-License-Identifier: MIT
#include "host/health/StoredHealthClient.h"

#include <utility>

namespace mivo::host {
namespace {

constexpr std::string_view isAuthorizedKey = "health.isAuthorized";

}  // namespace

StoredHealthClient::StoredHealthClient(Client<UserDefaults> ownDefaults) : defaults{std::move(ownDefaults)} {}

bool StoredHealthClient::shouldRequestAuthorization() const { return !defaults->boolean(isAuthorizedKey, false); }

void StoredHealthClient::requestAuthorization() const { defaults->setValue(isAuthorizedKey, true); }

}  // namespace mivo::host
