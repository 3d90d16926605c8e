// SPDX-License-Identifier: MIT
#include "host/data/CountText.h"

namespace mivo::host {

std::string fastCountText(std::int64_t count, const TextLookup& texts, const NumberFormatter& numbers) {
  return filledIn(texts.plural("{1} fast", "{1} fasts", count), {numbers.string(count)});
}

std::string weightCountText(std::int64_t count, const TextLookup& texts, const NumberFormatter& numbers) {
  return filledIn(texts.plural("{1} weight", "{1} weights", count), {numbers.string(count)});
}

std::string countText(const RecordCounts& counts, const TextLookup& texts, const NumberFormatter& numbers) {
  return fastCountText(counts.fasts, texts, numbers) + ", " + weightCountText(counts.weights, texts, numbers);
}

std::string shortCountText(const RecordCounts& counts, const TextLookup& texts, const NumberFormatter& numbers) {
  if (counts.weights == 0 && counts.fasts > 0) return fastCountText(counts.fasts, texts, numbers);
  if (counts.fasts == 0 && counts.weights > 0) return weightCountText(counts.weights, texts, numbers);
  return countText(counts, texts, numbers);
}

}  // namespace mivo::host
