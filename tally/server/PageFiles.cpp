// SPDX-License-Identifier: MIT
#include "tally/server/PageFiles.h"

#include <openssl/evp.h>

#include <algorithm>
#include <array>
#include <span>
#include <stdexcept>
#include <utility>

#include "tally/request/Conditions.h"
#include "tally/server/FileContent.h"

namespace mivo::tally {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view packedEnding = ".gz";
constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr std::string_view hexadecimal = "0123456789abcdef";

constexpr std::array<std::pair<std::string_view, std::string_view>, 10> types{{
    {".css", "text/css; charset=utf-8"},
    {".html", "text/html; charset=utf-8"},
    {".js", "text/javascript; charset=utf-8"},
    {".json", "application/json"},
    {".mjs", "text/javascript; charset=utf-8"},
    {".png", "image/png"},
    {".svg", "image/svg+xml"},
    {".txt", "text/plain; charset=utf-8"},
    {".wasm", "application/wasm"},
    {".webmanifest", "application/manifest+json"},
}};

std::string_view typeOf(const fs::path& name) {
  const auto* type = std::ranges::find(types, name.extension().string(), &decltype(types)::value_type::first);
  return type == types.end() ? "application/octet-stream" : type->second;
}

bool isNamedByContent(const fs::path& name) {
  constexpr std::size_t digits = 10;
  const auto stem = name.stem().string();
  if (stem.size() <= digits + 1 || stem[stem.size() - digits - 1] != '-') return false;
  return stem.find_first_not_of(hexadecimal, stem.size() - digits) == std::string::npos;
}

std::string tagOf(std::string_view content) {
  std::array<unsigned char, EVP_MAX_MD_SIZE> hash{};
  unsigned size = 0;
  if (EVP_Digest(content.data(), content.size(), hash.data(), &size, EVP_sha256(), nullptr) != 1)
    throw std::runtime_error("OpenSSL has no SHA-256");
  std::string tag = "\"";
  for (const unsigned byte : std::span{hash}.first(16)) (tag += hexadecimal[byte >> 4U]) += hexadecimal[byte & 15U];
  return tag += '"';
}

// What a page says of itself in a <meta>; nothing where it says none.
std::optional<std::string_view> policyWithin(std::string_view page) {
  constexpr std::string_view content = "content=\"";
  const auto name = page.find("\"Content-Security-Policy\"");
  if (name == std::string_view::npos) return std::nullopt;
  const auto begin = std::min(page.rfind('<', name), name);
  const auto tag = page.substr(begin, page.find('>', name) - begin);
  const auto at = tag.find(content);
  if (at == std::string_view::npos) return "";
  const auto said = tag.substr(at + content.size());
  return said.substr(0, said.find('"'));
}

// The page's own, so that it is written once, and what only a header can say.
std::string policyOf(std::string_view page) {
  const auto said = policyWithin(page).value_or("default-src 'self'");
  if (said.empty() || std::ranges::any_of(said, [](char c) { return c < ' ' || c > '~'; }))
    throw std::runtime_error("its Content-Security-Policy must be one line of ASCII");
  return std::string{said} + "; frame-ancestors 'none'";
}

class Reading {
 public:
  explicit Reading(fs::path root) : folder(std::move(root)) {}

  PageFiles::Files files() {
    findAll();
    const auto index = contents.find("/index.html");
    if (index == contents.end()) throw std::runtime_error(folder.string() + ": has no index.html");
    try {
      policy = policyOf(index->second);
    } catch (const std::runtime_error& error) {
      throw std::runtime_error((folder / "index.html").string() + ": " + error.what());
    }
    PageFiles::Files made;
    for (const auto& [path, content] : contents)
      if (!isPackedFormOfAnother(path)) made.emplace(path, fileAt(path));
    return made;
  }

 private:
  void findAll() {
    std::error_code error;
    fs::recursive_directory_iterator entry{folder, error};
    for (; !error && entry != fs::recursive_directory_iterator{}; entry.increment(error)) {
      if (entry->path().filename().string().starts_with('.')) {
        entry.disable_recursion_pending();
      } else if (entry->symlink_status().type() == fs::file_type::regular) {
        add(entry->path());
      }
    }
    if (error) throw std::runtime_error(folder.string() + ": " + error.message());
  }

  void add(const fs::path& file) {
    const auto path = '/' + file.lexically_relative(folder).generic_string();
    if (path.find_first_not_of(std::string{letters} + "0123456789/-._~") != std::string::npos)
      throw std::runtime_error(file.string() +
                               ": a file of a page is named with letters, digits, '-', '.', '_' and '~'");
    try {
      const auto& content = contents[path] = contentOf(file, largestPage);
      total += content.size();
    } catch (const std::runtime_error& error) {
      throw std::runtime_error(file.string() + ": " + error.what());
    }
    if (total > largestPage)
      throw std::runtime_error(folder.string() + ": its files are larger than " + std::to_string(largestPage >> 20U) +
                               " MiB together");
  }

  bool isPackedFormOfAnother(std::string_view path) const {
    return path.ends_with(packedEnding) && contents.contains(path.substr(0, path.size() - packedEnding.size()));
  }

  PageFiles::File fileAt(const std::string& path) const {
    const auto packed = contents.find(path + std::string{packedEnding});
    if (packed == contents.end()) return {.plain = formOf(path, contents.at(path), ""), .packed = std::nullopt};
    return {.plain = formOf(path, contents.at(path), "Vary: Accept-Encoding\r\n"),
            .packed = formOf(path, packed->second, "Vary: Accept-Encoding\r\nContent-Encoding: gzip\r\n")};
  }

  PageFiles::Form formOf(const fs::path& name, const std::string& content, std::string_view coding) const {
    const auto tag = tagOf(content);
    std::string head = "Content-Type: ";
    head.append(typeOf(name)).append("\r\nCache-Control: ");
    head += isNamedByContent(name) ? "public, max-age=31536000, immutable" : "no-cache";
    head.append("\r\nETag: ").append(tag).append("\r\nContent-Security-Policy: ").append(policy);
    head.append("\r\nReferrer-Policy: no-referrer\r\nCross-Origin-Opener-Policy: same-origin\r\n").append(coding);
    return {std::make_shared<const std::string>(content), tag, std::make_shared<const std::string>(std::move(head))};
  }

  fs::path folder;
  std::map<std::string, std::string, std::less<>> contents;  // by path
  std::size_t total = 0;
  std::string policy;
};

}  // namespace

std::optional<Answer> PageFiles::answerTo(std::string_view path, const Request& request) const {
  const auto found = files.find(path == "/" ? "/index.html" : path);
  if (found == files.end()) return std::nullopt;
  const auto& [plain, packed] = found->second;
  const Form& form = packed && acceptsGzip(request.acceptEncoding) ? *packed : plain;
  if (namesTag(request.ifNoneMatch, form.tag)) return Answer{.status = notModified, .head = form.head};
  return Answer{.shared = form.content, .head = form.head};
}

PageFiles loadPageFiles(const fs::path& folder) {
  if (folder.empty()) return {};
  return PageFiles{Reading{folder}.files()};
}

}  // namespace mivo::tally
