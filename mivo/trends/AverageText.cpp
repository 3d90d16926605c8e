// SPDX-License-Identifier: MIT
#include "mivo/trends/AverageText.h"

#include <array>
#include <cmath>
#include <mutex>
#include <shared_mutex>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace mivo {
namespace {

constexpr double noticeableDifference = secondsPerHour / 2;

// {1} is the range's word, {2} the zone's name. By Comparison: less, equal, more.
using Templates = std::array<std::string_view, 3>;
constexpr Templates fastingTemplates{translatableByRange("You're fasting less this {1} compared to last {1}."),
                                     translatableByRange("You're fasting about as much this {1} as last {1}."),
                                     translatableByRange("You're fasting more this {1} compared to last {1}.")};
constexpr Templates eatingTemplates{translatableByRange("Your eating window is shorter this {1} compared to last {1}."),
                                    translatableByRange("Your eating window is about as long this {1} as last {1}."),
                                    translatableByRange("Your eating window is longer this {1} compared to last {1}.")};
constexpr Templates zoneTemplates{translatableByRange("You're less in the {2} zone this {1} compared to last {1}."),
                                  translatableByRange("You're about as much in the {2} zone this {1} as last {1}."),
                                  translatableByRange("You're more in the {2} zone this {1} compared to last {1}.")};

constexpr const Templates& templates(LegacyFastingZone zone) {
  switch (zone) {
    case LegacyFastingZone::fasting:
      return fastingTemplates;
    case LegacyFastingZone::eating:
      return eatingTemplates;
    default:
      return zoneTemplates;
  }
}

std::string sentence(const AverageTextCacheKey& key, const TextLookup& texts) {
  const std::string_view english = templates(key.zone)[static_cast<std::size_t>(key.comparision)];
  return filledIn(texts.text(english, rawValue(key.timeRange)),
                  {texts.text(displayString(key.timeRange)), texts.text(displayString(key.zone))});
}

struct SentenceCache {
  std::shared_mutex mutex;
  std::unordered_map<AverageTextCacheKey, std::string> sentences;  // nothing is removed, so references stay good
};

SentenceCache& sentenceCache() {
  static SentenceCache cache;
  return cache;
}

}  // namespace

Comparison comparison(double thisAverage, double lastAverage) {
  if (std::abs(thisAverage - lastAverage) < noticeableDifference) return Comparison::equal;
  return lastAverage < thisAverage ? Comparison::more : Comparison::less;
}

const std::string& averageText(TimeRange timeRange, LegacyFastingZone zone, double thisAverage, double lastAverage,
                               const TextLookup& texts) {
  SentenceCache& cache = sentenceCache();
  const AverageTextCacheKey key{zone, timeRange, comparison(thisAverage, lastAverage)};
  {
    const std::shared_lock lock{cache.mutex};
    if (const auto found = cache.sentences.find(key); found != cache.sentences.end()) return found->second;
  }
  std::string built = sentence(key, texts);  // outside the lock: the look-up is the host's code
  const std::unique_lock lock{cache.mutex};
  return cache.sentences.try_emplace(key, std::move(built)).first->second;
}

}  // namespace mivo

std::size_t std::hash<mivo::AverageTextCacheKey>::operator()(const mivo::AverageTextCacheKey& key) const noexcept {
  std::size_t seed = 0;
  const auto mix = [&seed](std::size_t next) { seed = seed * 0x9E3779B97F4A7C15u + next; };
  mix(std::hash<std::string_view>{}(rawValue(key.zone)));
  mix(std::hash<std::string_view>{}(rawValue(key.timeRange)));
  mix(static_cast<std::size_t>(key.comparision));
  return seed;
}
