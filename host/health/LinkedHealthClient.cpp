// SPDX-License-Identifier: MIT
#include "host/health/LinkedHealthClient.h"

#include <utility>

namespace mivo::host {

LinkedHealthClient::LinkedHealthClient(Client<UserDefaults> ownDefaults, bool isOffered)
    : defaults{std::move(ownDefaults)}, offered{isOffered} {}

std::string LinkedHealthClient::file() const {
  return offered ? defaults->text(linkedHealthFileKey, "") : std::string{};
}

void LinkedHealthClient::link(const std::string& path) const {
  if (offered) defaults->setValue(linkedHealthFileKey, path);
}

void LinkedHealthClient::unlink() const {
  if (!offered) return;
  defaults->setValue(linkedHealthFileKey, std::nullopt);
  defaults->setHealthKitSync(false);
}

void LinkedHealthClient::shouldRequestAuthorization(std::function<void(bool)> completion) const {
  completion(offered && file().empty());
}

}  // namespace mivo::host
