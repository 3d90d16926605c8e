// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "mivo/platform/Client.h"
#include "mivo/platform/DonationClient.h"
#include "mivo/platform/JSONValue.h"
#include "mivo/platform/TextLookup.h"
#include "mivo/platform/URLSession.h"

namespace mivo::host {

/// The ways to give, from a JSON file or an address that serves one (docs/donations-file.md), read anew on each
/// request. An error is a sentence in the user's language with the cause in brackets. Thread: any.
class DonationList final : public DonationClient {
 public:
  /// What a list is read with. The session may be missing where the source is a file.
  struct Tools {
    Client<URLSession> session;
    Client<JSONDecoder> decoder;
    Client<TextLookup> texts;
    std::string languageTag;
  };

  /// `source` is an address if it begins with a scheme ("https://"), else a file.
  DonationList(std::string source, Tools tools);
  void products(StopToken stop, Completion<DonationProducts> completion) const override;

 private:
  void text(StopToken stop, Completion<std::string> completion) const;

  std::string source;
  Tools tools;
};

}  // namespace mivo::host
