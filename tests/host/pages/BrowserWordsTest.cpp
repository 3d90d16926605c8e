// SPDX-License-Identifier: MIT
#include "host/pages/BrowserWords.h"

#include <gtest/gtest.h>

#include "tests/support/TestWorld.h"

namespace mivo::host {
namespace {

TEST(BrowserWords, knowHowTheirLanguageIsWritten) {
  const tests::EnglishTexts texts;
  for (const std::string_view tag : {"ar", "ar-EG", "he_IL", "fa-IR", "ckb"})
    EXPECT_TRUE(browserWords(tag, texts).isRightToLeft) << tag;
  for (const std::string_view tag : {"", "en", "de-AT", "az", "sl", "arn"})
    EXPECT_FALSE(browserWords(tag, texts).isRightToLeft) << tag;
  EXPECT_EQ(browserWords("pt-BR", texts).language, "pt-BR");
}

}  // namespace
}  // namespace mivo::host
