// SPDX-License-Identifier: MIT
#include "host/pages/AboutPage.h"

#include <array>
#include <utility>

namespace mivo::host {

AboutPage composeAbout(const AboutFacts& about, std::vector<Fact> libraries, const TextLookup& texts) {
  const std::array<Fact, 7> shared{{{"SQLite", texts.text("Public domain")},
                                    {"SQLiteCpp", "MIT"},
                                    {"JSON for Modern C++", "MIT"},
                                    {"RapidJSON", "MIT"},
                                    {"libcsv", "LGPL-2.1"},
                                    {"Expat", "MIT"},
                                    {"expected", "CC0-1.0"}}};
  libraries.insert(libraries.end(), shared.begin(), shared.end());
  std::vector<Fact> facts{{texts.text("Version"), about.version},
                          {texts.text("Licence"), "MIT"},
                          {texts.text("Database"), about.databaseFile}};
  if (!about.exportCommand.empty()) facts.push_back({texts.text("Copy of everything"), about.exportCommand});
  return {.title = texts.text("About Mivo"),
          .note = texts.text("Everything stays on this device."),
          .facts = std::move(facts),
          .librariesTitle = texts.text("Libraries"),
          .libraries = std::move(libraries)};
}

}  // namespace mivo::host
