// SPDX-License-Identifier: MIT
#include "host/pages/HealthSheet.h"

namespace mivo::host {

// Most looks at the file end before anybody could see that they began.
HealthSheet composeHealthSheet(const HealthFeature::State& state, const TextLookup& texts) {
  const bool isLinked = !state.file->empty(), isSeenReading = state.reading && *state.reading->progress > 0;
  return {.title = texts.text("Health data"),
          .text = isLinked ? filledIn(texts.text("Weights come from {1} whenever it has changed. What you delete or "
                                                 "change here stays so, and what has come stays when you unlink it."),
                                      {*state.file})
                           : texts.text("Link the export of your phone's health app, as XML or in its zip. Its "
                                        "weights are taken over now and whenever the file has changed; it is only "
                                        "read."),
          .fault = state.fault->empty() ? *state.notice : *state.fault,
          .progress = isSeenReading ? *state.reading->progress : -1,
          .chooseLabel = isLinked ? texts.text("Choose another file") : texts.text("Choose file"),
          .unlinkLabel = isLinked ? texts.text("Unlink") : "",
          .closeLabel = texts.text("Close")};
}

std::string linkedFileText(const HealthFeature::State& state, const TextLookup& texts) {
  if (!*state.isOffered) return {};
  if (state.file->empty()) return texts.text("None");
  if (!state.fault->empty()) return texts.text("Cannot be read");
  return state.file->substr(state.file->rfind('/') + 1);
}

}  // namespace mivo::host
