// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

#include "adapters/icu/UserLocale.h"
#include "adapters/time/TimeZone.h"
#include "mivo/model/Date.h"

namespace mivo::host {

// What the options of app and command line mean that say where and when the user is. An error is a sentence that names
// the option, what was expected and what was found:
//
//     --now: expected a date and time such as ..., found "noon"

template <class Value>
using Read = tl::expected<Value, std::string>;

tl::unexpected<std::string> wrong(std::string_view option, std::string_view expected, std::string_view found);
tl::unexpected<std::string> wrong(std::string_view option, const std::string& sentence);

/// `--time-zone`; the system's where it was not given.
Read<std::shared_ptr<const adapters::TimeZone>> readTimeZone(const std::string& name);

/// `--locale`; the system's where it was not given.
Read<adapters::UserLocale> readLocale(const std::string& tag);

/// A date and time of the years 1 to 9999; one without offset is in `zone`.
Read<Date> readDate(std::string_view option, std::string_view text, const adapters::TimeZone& zone);

}  // namespace mivo::host
