// SPDX-License-Identifier: MIT
#include "tally/server/VoteAllowance.h"

#include <openssl/evp.h>
#include <openssl/hmac.h>
#include <openssl/rand.h>

#include <cstring>
#include <stdexcept>
#include <string>

#include "tally/request/ClientAddress.h"

namespace mivo::tally {

bool VoteAllowance::take(const asio::ip::address& client, std::string_view counter, int delta,
                         std::chrono::sys_days today) {
  if (perDay == 0) return true;
  if (today != day || votes.size() + 2 > mostHashes) beginAnew(today);
  const auto site = siteKey(client);
  auto* ofSite = site ? &votesOf(*site, 48, counter, delta) : nullptr;
  if (ofSite != nullptr && *ofSite >= householdsOfASite * perDay) return false;
  auto& own = votesOf(rateKey(client), 64, counter, delta);
  if (own >= perDay) return false;
  ++own;
  if (ofSite != nullptr) ++*ofSite;
  return true;
}

void VoteAllowance::beginAnew(std::chrono::sys_days today) {
  if (RAND_bytes(salt.data(), static_cast<int>(salt.size())) != 1) throw std::runtime_error("no random numbers");
  votes.clear();
  day = today;
}

std::uint32_t& VoteAllowance::votesOf(std::uint64_t origin, unsigned bits, std::string_view counter, int delta) {
  const auto text = std::to_string(origin) + '/' + std::to_string(bits) + ' ' + std::string{counter};
  std::array<unsigned char, EVP_MAX_MD_SIZE> hash{};
  HMAC(EVP_sha256(), salt.data(), static_cast<int>(salt.size()), reinterpret_cast<const unsigned char*>(text.data()),
       text.size(), hash.data(), nullptr);
  std::uint64_t key = 0;
  std::memcpy(&key, hash.data(), sizeof key);
  auto& found = votes[key];
  return delta > 0 ? found.up : found.down;
}

}  // namespace mivo::tally
