// SPDX-License-Identifier: MIT
#pragma once
#include <optional>
#include <string>
#include <vector>

#include "tally/request/Answer.h"
#include "tally/request/Request.h"

namespace mivo::tally {

/// Web origins ("https://app.example") whose pages may vote and read counts; "*" stands for every one.
using AllowedOrigins = std::vector<std::string>;

/// Why this request must not change a counter, or nothing where it may: only a GET that somebody meant votes. A page of
/// another place is known by `Origin`, or by `Referer` and `Sec-Fetch-Site` where it asks through an image, which sends
/// no Origin; a page of the same site is another place too.
std::optional<Refusal> faultOfVote(const Request& request, const AllowedOrigins& allowed);

/// The value of Access-Control-Allow-Origin, or nothing where the header is left out.
std::string_view originToAllow(const Request& request, const AllowedOrigins& allowed);

}  // namespace mivo::tally
