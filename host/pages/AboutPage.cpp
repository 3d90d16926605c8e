// SPDX-License-Identifier: MIT
#include "host/pages/AboutPage.h"

#include <utility>

namespace mivo::host {

AboutPage composeAbout(const AboutFacts& about, std::vector<Fact> front, const TextLookup& texts) {
  const std::vector<Fact> libraries{{"ICU", "Unicode-DFS-2016"}, {"cctz", "Apache-2.0"},
                                    {"Boost.Locale", "BSL-1.0"}, {"SQLite", texts.text("Public domain")},
                                    {"SQLiteCpp", "MIT"},        {"JSON for Modern C++", "MIT"},
                                    {"libcurl", "curl"},         {"libcsv", "LGPL-2.1"},
                                    {"CLI11", "BSD-3-Clause"},   {"expected", "CC0-1.0"},
                                    {"Inter", "OFL-1.1"}};
  front.insert(front.end(), libraries.begin(), libraries.end());
  return {.title = texts.text("About Mivo"),
          .note = texts.text("Everything stays on this device."),
          .facts = {{texts.text("Version"), about.version},
                    {texts.text("Licence"), "MIT"},
                    {texts.text("Database"), about.databaseFile},
                    {texts.text("Copy of everything"), about.exportCommand}},
          .librariesTitle = texts.text("Libraries"),
          .libraries = std::move(front)};
}

}  // namespace mivo::host
