// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "mivo/model/Record.h"
#include "mivo/platform/TextLookup.h"

namespace mivo::host {

/// A row that says something: "Version", "0.1.0".
struct Fact {
  std::string title, value;
  bool operator==(const Fact&) const = default;
};

template <RecordOf<Fact> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, value] = record;
  visit("title", title);
  visit("value", value);
}

/// What the app is, where it keeps the records, and what it is built on.
struct AboutPage {
  std::string title;
  std::string note;         ///< under the facts
  std::vector<Fact> facts;  ///< version, licence, database, how to copy it
  std::string librariesTitle;
  std::vector<Fact> libraries;  ///< name and licence
  bool operator==(const AboutPage&) const = default;
};

template <RecordOf<AboutPage> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, note, facts, librariesTitle, libraries] = record;
  visit("title", title);
  visit("note", note);
  visit("facts", facts);
  visit("librariesTitle", librariesTitle);
  visit("libraries", libraries);
}

/// What only the program knows about itself. `exportCommand` writes a copy of all records; the database's file alone
/// may lack the latest; it is empty where there are no commands.
struct AboutFacts {
  std::string version, databaseFile, exportCommand;
};

/// `libraries` are the program's own; those that every program stands on come after them.
AboutPage composeAbout(const AboutFacts& about, std::vector<Fact> libraries, const TextLookup& texts);

}  // namespace mivo::host
