// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "adapters/zoneinfo/LoadTimeZone.h"
#include "host/import/ImportReader.h"
#include "host/import/SaidFasts.h"
#include "mivo/weights/WeightUnits.h"
#include "tests/support/FixedClients.h"

namespace {

using namespace mivo;

using Outcome = tl::expected<host::ImportedFile, host::ImportFault>;

Outcome readInPieces(std::string_view bytes, std::size_t piece) {
  static const auto zone = adapters::loadTimeZone("America/Sao_Paulo").value();
  const tests::CountingUUIDs ids;
  host::ImportReader reader{"f", {.zone = zone, .weightUnit = {}, .dateOrder = {}}, ids};
  for (; !bytes.empty() && reader.wantsMore(); bytes.remove_prefix(std::min(piece, bytes.size())))
    reader.feed(bytes.substr(0, piece));
  return reader.finish();
}

bool isSound(const FastingDataEntry& fast) {
  return isRepresentable(fast.start) && fast.goalSeconds >= 0 &&
         (!fast.finished || isRepresentable(fast.finished->end));
}

void check(const host::ImportedFile& file) {
  for (const auto& [fast, note] : file.fasts)
    if (!isSound(fast)) std::abort();
  for (const auto& sample : file.weights)
    if (!isRepresentable(sample.date) || !isBodyWeight(sample.weightInKg)) std::abort();
  for (const auto& bad : file.refused.first())
    if (describe(bad).find('\n') != std::string::npos) std::abort();
}

host::ImportedFile readSaid(std::string_view bytes) {
  static const auto zone = adapters::loadTimeZone("America/Sao_Paulo").value();
  const tests::CountingUUIDs ids;
  const host::SpokenFrame dates{dateSince1970(1795613420), *zone, host::DateOrder::monthFirst};
  return host::readSaidFasts("f", bytes, {host::englishDateNames(), dates, 57600}, ids);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes{reinterpret_cast<const char*>(data), size};
  check(readSaid(bytes));
  const auto whole = readInPieces(bytes, bytes.size() + 1), pieces = readInPieces(bytes, 7);
  if (whole.has_value() != pieces.has_value()) std::abort();
  if (!whole) {
    if (whole.error() != pieces.error() || describe(whole.error().bad).find('\n') != std::string::npos) std::abort();
    return 0;
  }
  check(*whole);
  const bool isSame = whole->kind == pieces->kind && whole->fasts == pieces->fasts &&
                      whole->weights == pieces->weights && whole->refused == pieces->refused &&
                      whole->notes == pieces->notes;
  if (!isSame) std::abort();
  return 0;
}
