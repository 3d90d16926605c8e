// SPDX-License-Identifier: MIT
#pragma once
#include <cstddef>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "tally/request/Answer.h"
#include "tally/request/Request.h"

namespace mivo::tally {

/// Bytes of a folder's files together.
inline constexpr std::size_t largestPage = std::size_t{64} << 20;

/// The files of the page for browsers, as they were when they were read. What is not among them is not there, whatever
/// a request's path says: the disk is not asked.
class PageFiles {
 public:
  /// One way to send a file: as it is, or packed.
  struct Form {
    std::shared_ptr<const std::string> content;
    std::string tag;                          // "\"9f86d081884c7d65\"": another one for other bytes
    std::shared_ptr<const std::string> head;  // its header lines, but for the length
  };
  struct File {
    Form plain;
    std::optional<Form> packed;  // with gzip
  };
  using Files = std::map<std::string, File, std::less<>>;  // by path: "/index.html"

  PageFiles() = default;
  explicit PageFiles(Files found) : files(std::move(found)) {}

  /// The file at `path`, with 304 and no body where the request says that the client has it; nothing where there is no
  /// such file. "/" is index.html.
  std::optional<Answer> answerTo(std::string_view path, const Request& request) const;

 private:
  Files files;
};

/// Reads a folder and those in it; none where `folder` is empty. Left out are links and what begins with a dot; a file
/// NAME.gz beside NAME is its packed form.
///
/// A name that ends with ten hexadecimal digits, as in page-0123456789.js, says what is in the file, which a browser
/// may then keep; it asks again for all others. Each file has the Content-Security-Policy that index.html says for
/// itself, so that the workers have it too, and no other page may frame it.
///
/// Throws std::runtime_error with one sentence that names the folder or the file: one that cannot be read, a folder
/// without index.html or with more than `largestPage`, a name of other than letters, digits and `-._~`.
PageFiles loadPageFiles(const std::filesystem::path& folder);

}  // namespace mivo::tally
