// SPDX-License-Identifier: MIT
#include "adapters/locale/MessageCatalogue.h"

#include <boost/locale/gnu_gettext.hpp>
#include <boost/locale/message.hpp>
#include <cstdint>
#include <exception>

#include "mivo/platform/IssueReporting.h"

namespace mivo::adapters {
namespace {

using Messages = boost::locale::message_format<char>;

constexpr const char* domain = "mivo";
constexpr int domainId = 0;  // the only domain that is loaded

/// "pt-BR", "pt_BR.UTF-8" and "pt-Latn-BR" name the language "pt" and the region "BR".
boost::locale::gnu_gettext::messages_info languageAndRegion(std::string_view localeTag) {
  constexpr std::string_view separators = "-_";
  std::string_view rest = localeTag.substr(0, localeTag.find_first_of(".@"));
  boost::locale::gnu_gettext::messages_info named;
  named.language = rest.substr(0, rest.find_first_of(separators));
  rest.remove_prefix(named.language.size());
  while (!rest.empty() && named.country.empty()) {
    rest.remove_prefix(1);
    const std::string_view part = rest.substr(0, rest.find_first_of(separators));
    if (part.size() == 2) named.country = part;
    rest.remove_prefix(part.size());
  }
  return named;
}

std::locale languageFrom(std::string_view localeTag, const std::filesystem::path& folder) {
  if (folder.empty()) return std::locale::classic();
  try {
    // The facet alone, not a whole generated locale: that one sorts and formats too, and asks for it by names that
    // differ from release to release.
    auto catalogue = languageAndRegion(localeTag);
    catalogue.encoding = "UTF-8";
    catalogue.paths = {folder.string()};
    catalogue.domains = {boost::locale::gnu_gettext::messages_info::domain{domain}};
    return std::locale{std::locale::classic(), boost::locale::gnu_gettext::create_messages_facet<char>(catalogue)};
  } catch (const std::exception& error) {
    reportIssue("the texts of \"" + std::string{localeTag} + "\" in " + folder.string() +
                " cannot be read, so they are English: " + error.what());
    return std::locale::classic();
  }
}

/// Plural rules take a plain int, and look at the size and at the last digits.
int pluralSize(std::int64_t count) {
  constexpr std::uint64_t million = 1'000'000;
  const std::uint64_t size = count < 0 ? -static_cast<std::uint64_t>(count) : static_cast<std::uint64_t>(count);
  return static_cast<int>(size < million ? size : million + size % million);
}

/// The empty key is gettext's entry for the catalogue's own header.
const Messages* messagesFor(const std::locale& language, std::string_view key) {
  const bool isAsked = !key.empty() && std::has_facet<Messages>(language);
  return isAsked ? &std::use_facet<Messages>(language) : nullptr;
}

}  // namespace

MessageCatalogue::MessageCatalogue(std::string_view localeTag, const std::filesystem::path& folder)
    : language{languageFrom(localeTag, folder)} {}

std::string MessageCatalogue::text(std::string_view key, std::string_view context) const {
  const Messages* messages = messagesFor(language, key);
  std::string english{key};
  if (!messages) return english;
  const char* found = nullptr;
  if (!context.empty()) found = messages->get(domainId, std::string{context}.c_str(), english.c_str());
  if (!found) found = messages->get(domainId, nullptr, english.c_str());
  return found ? found : english;
}

std::string MessageCatalogue::plural(std::string_view one, std::string_view many, std::int64_t count) const {
  const Messages* messages = messagesFor(language, one);
  const int size = pluralSize(count);
  const char* found = messages ? messages->get(domainId, nullptr, std::string{one}.c_str(), size) : nullptr;
  return found ? found : std::string{size == 1 ? one : many};
}

}  // namespace mivo::adapters
