// SPDX-License-Identifier: MIT
#include "host/donations/DonationList.h"

#include <exception>
#include <stdexcept>
#include <string_view>
#include <utility>
#include <vector>

#include "host/disk/TextFile.h"
#include "mivo/platform/LocalizedText.h"

namespace mivo::host {
namespace {

constexpr std::size_t largestListInBytes = std::size_t{1} << 20;

std::string decodedText(const JSONValue& value) {
  if (!value.text() || value.text()->empty()) throw DecodingError{"expected a text"};
  return *value.text();
}

/// Links are opened in a browser, so nothing but the web is taken.
std::string decodedLink(const JSONValue& value) {
  std::string link = decodedText(value);
  if (!link.starts_with("https://")) throw DecodingError{"expected an address that begins with https://"};
  return link;
}

DonationProduct decodedProduct(const JSONValue& value, std::string_view languageTag) {
  const auto localized = [languageTag](const JSONValue& text) {
    return std::string{LocalizedText::decoded(text).in(languageTag)};
  };
  if (!value.object()) throw DecodingError{"expected an object"};
  return {decodedMember(value, "id", decodedText), decodedMember(value, "title", localized),
          decodedMember(value, "price", localized), decodedMember(value, "url", decodedLink)};
}

std::vector<DonationProduct> decodedProducts(const JSONValue& value, std::string_view languageTag) {
  if (value.isNull()) return {};
  if (!value.array()) throw DecodingError{"expected a list"};
  std::vector<DonationProduct> products;
  for (const JSONValue& product : *value.array())
    products.push_back(decodedAt(std::to_string(products.size() + 1),
                                 [&product, languageTag] { return decodedProduct(product, languageTag); }));
  return products;
}

DonationProducts decodedList(const JSONValue& list, std::string_view languageTag) {
  const auto products = [languageTag](const JSONValue& value) { return decodedProducts(value, languageTag); };
  if (!list.object()) throw DecodingError{"expected an object"};
  return {decodedMember(list, "oneTime", products), decodedMember(list, "recurring", products)};
}

}  // namespace

DonationList::DonationList(std::string from, Tools with) : source{std::move(from)}, tools{std::move(with)} {}

void DonationList::products(StopToken stop, Completion<DonationProducts> completion) const {
  text(std::move(stop),
       [from = source, with = tools, completion = std::move(completion)](const Answer<std::string>& json) {
         completion(answerOf([&]() -> DonationProducts {
           try {
             const std::string& read = json.value();
             return decodedAt(from, [&] { return decodedList(with.decoder->decoded(read), with.languageTag); });
           } catch (const std::exception& error) {
             throw std::runtime_error{
                 filledIn(with.texts->text("The ways to donate could not be loaded ({1})."), {error.what()})};
           }
         }));
       });
}

void DonationList::text(StopToken stop, Completion<std::string> completion) const {
  if (source.find("://") != std::string::npos)
    return tools.session->data(source, std::move(stop), std::move(completion));
  completion(answerOf([this] {
    auto content = readTextFile(source, largestListInBytes);
    if (!content) throw std::runtime_error{describe(content.error())};
    return *std::move(content);
  }));
}

}  // namespace mivo::host
