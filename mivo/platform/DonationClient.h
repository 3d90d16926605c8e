// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "mivo/model/Record.h"
#include "mivo/platform/Answer.h"
#include "mivo/platform/StopToken.h"

namespace mivo {

/// One way to give: a link to where it is paid. The texts come in the user's language, the price with its currency.
struct DonationProduct {
  std::string id, title, price, url;
  bool operator==(const DonationProduct&) const = default;
};

template <RecordOf<DonationProduct> Record, class Visit>
void fields(Record& record, Visit&& visit) {
  auto& [id, title, price, url] = record;
  visit("id", id);
  visit("title", title);
  visit("price", price);
  visit("url", url);
}

struct DonationProducts {
  std::vector<DonationProduct> oneTime, recurring;
  bool operator==(const DonationProducts&) const = default;
};

template <RecordOf<DonationProducts> Record, class Visit>
void fields(Record& record, Visit&& visit) {
  auto& [oneTime, recurring] = record;
  visit("oneTime", oneTime);
  visit("recurring", recurring);
}

/// Where the ways to give are listed. Thread: any; it may take its time before it returns, so it is called from tasks
/// only.
class DonationClient {
 public:
  virtual ~DonationClient() = default;
  /// The error is a std::exception whose `what()` is one sentence for the user, also once `stop` is requested.
  virtual void products(StopToken stop, Completion<DonationProducts> completion) const = 0;
};

}  // namespace mivo
