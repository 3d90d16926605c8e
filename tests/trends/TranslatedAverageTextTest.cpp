// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "mivo/trends/AverageText.h"
#include "tests/support/FixedClients.h"

namespace mivo {
namespace {

/// A language that inflects "this {1}" by gender, with an entry a range.
struct InflectingTexts : tests::EnglishTexts {
  std::string text(std::string_view key, std::string_view context) const override {
    if (key == "month") return "Monat";
    if (key == "Catabolic") return "Katabol";
    const bool isSentence = key == "You're less in the {2} zone this {1} compared to last {1}.";
    return isSentence && context == "month" ? "{2}: diesen {1} weniger als letzten {1}." : "unexpected";
  }
};

// In a program of its own: a process keeps the sentences that it has built.
TEST(TranslatedAverageText, putsTranslatedWordsIntoTheTranslatedTemplateOfTheRange) {
  EXPECT_EQ(averageText(TimeRange::month, LegacyFastingZone::catabolic, 0, 7200, InflectingTexts{}),
            "Katabol: diesen Monat weniger als letzten Monat.");
}

}  // namespace
}  // namespace mivo
