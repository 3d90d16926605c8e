// SPDX-License-Identifier: MIT
#include "host/donations/DonationList.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "adapters/json/NlohmannDecoder.h"
#include "adapters/system/Awaited.h"
#include "tests/support/FixedClients.h"

namespace mivo::host {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

struct OneAnswer : URLSession {
  void data(std::string_view url, StopToken, Completion<std::string> completion) const override {
    if (isAway) return completion(std::make_exception_ptr(URLError{std::string{url} + ": no connection"}));
    completion(body);
  }
  std::string body;
  bool isAway = false;
};

DonationProducts productsOf(const DonationList& list) {
  return adapters::awaited<Answer<DonationProducts>>([&](auto completion) { list.products({}, completion); }).value();
}

class DonationListTest : public testing::Test {
 protected:
  DonationList listFrom(const std::string& source, const char* languageTag = "de-AT") const {
    return {
        source,
        {session, std::make_shared<adapters::NlohmannDecoder>(), std::make_shared<tests::EnglishTexts>(), languageTag}};
  }

  /// The sentence of the error that a list from the address ends with.
  std::string refusalOf(const char* json) const {
    session->body = json;
    try {
      productsOf(listFrom("https://mivo.example/d.json"));
      return "taken";
    } catch (const std::exception& error) {
      return error.what();
    }
  }

  std::shared_ptr<OneAnswer> session = std::make_shared<OneAnswer>();
};

TEST_F(DonationListTest, readsBothKindsInTheUsersLanguage) {
  session->body = R"({"oneTime": [{"id": "once", "title": {"en": "A coffee", "de": "Ein Kaffee"}, "price": "3 €",
                                   "url": "https://donate.example/once"}],
                      "recurring": [{"id": "monthly", "title": "Monthly", "price": {"en": "€2", "de": "2 €"},
                                     "url": "https://donate.example/monthly", "more": true}]})";
  const DonationProducts products = productsOf(listFrom("https://mivo.example/d.json"));
  EXPECT_THAT(products.oneTime,
              ElementsAre(DonationProduct{"once", "Ein Kaffee", "3 €", "https://donate.example/once"}));
  EXPECT_THAT(products.recurring,
              ElementsAre(DonationProduct{"monthly", "Monthly", "2 €", "https://donate.example/monthly"}));
  session->body = "{}";
  EXPECT_THAT(productsOf(listFrom("https://mivo.example/d.json")).oneTime, IsEmpty());
}

TEST_F(DonationListTest, readsFilesAndTheShippedOne) {
  EXPECT_THAT(productsOf(listFrom(MIVO_SHIPPED_DONATIONS, "fr")).oneTime, SizeIs(3));
  EXPECT_THAT(productsOf(listFrom(MIVO_SHIPPED_DONATIONS, "fr")).recurring, SizeIs(3));
  const auto missing = std::filesystem::path{testing::TempDir()} / "no-such-donations.json";
  try {
    productsOf(listFrom(missing.string()));
    FAIL();
  } catch (const std::exception& error) {
    EXPECT_THAT(error.what(), HasSubstr("The ways to donate could not be loaded (" + missing.string() + ":"));
  }
}

TEST_F(DonationListTest, canBeTriedAgain) {
  session->isAway = true;
  session->body = "{}";
  const DonationList list = listFrom("https://mivo.example/d.json");
  EXPECT_EQ(refusalOf("{}"), "The ways to donate could not be loaded (https://mivo.example/d.json: no connection).");
  session->isAway = false;
  EXPECT_EQ(productsOf(list), DonationProducts{});
}

struct RefusedRow {
  const char *name, *json, *where;
};
void PrintTo(const RefusedRow& row, std::ostream* out) { *out << row.name; }
class RefusedDonations : public DonationListTest, public testing::WithParamInterface<RefusedRow> {};

TEST_P(RefusedDonations, namesListProductAndField) {
  EXPECT_EQ(refusalOf(GetParam().json), "The ways to donate could not be loaded (https://mivo.example/d.json: " +
                                            std::string{GetParam().where} + ").");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, RefusedDonations,
    testing::Values(RefusedRow{"list", "[]", "expected an object"},
                    RefusedRow{"noList", R"({"oneTime": 3})", "oneTime: expected a list"},
                    RefusedRow{"noProduct", R"({"recurring": [null]})", "recurring: 1: expected an object"},
                    RefusedRow{"noTitle", R"({"oneTime": [{"id": "a", "price": "1", "url": "https://a.example"}]})",
                               "oneTime: 1: title: expected a text, or an object of texts by language"},
                    RefusedRow{"foreignLink",
                               R"({"oneTime": [{"id": "a", "title": "A", "price": "1", "url": "file:///etc"}]})",
                               "oneTime: 1: url: expected an address that begins with https://"},
                    RefusedRow{"emptyId",
                               R"({"oneTime": [{"id": "", "title": "A", "price": "1", "url": "https://a.example"}]})",
                               "oneTime: 1: id: expected a text"}),
    [](const auto& row) { return std::string{row.param.name}; });

}  // namespace
}  // namespace mivo::host
