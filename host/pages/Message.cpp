// SPDX-License-Identifier: MIT
#include "host/pages/Message.h"

namespace mivo::host {
namespace {

constexpr double secondsOfAnOffer = 6;

}  // namespace

Message composeMessage(const AppFeature::State& state, const TextLookup& texts, const NumberFormatter& numbers) {
  if (!state.failure->empty())
    return {.text = state.failure, .button = texts.text("OK"), .isFailure = true, .seconds = 0};
  const auto& offer = *state.undo;
  return {.text = offer && !offer->isTaken ? doneText(*offer, texts, numbers) : "",
          .button = texts.text("Undo"),
          .isFailure = false,
          .seconds = secondsOfAnOffer};
}

std::string noMailProgramText(const TextLookup& texts) {
  return texts.text("No mail program took your idea. It is on the clipboard now.");
}

}  // namespace mivo::host
