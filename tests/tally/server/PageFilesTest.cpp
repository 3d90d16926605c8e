// SPDX-License-Identifier: MIT
#include "tally/server/PageFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <fstream>

#include "tests/support/TemporaryFolder.h"
#include "tests/tally_support/HttpClient.h"
#include "tests/tally_support/TallyServer.h"

namespace mivo::tally::test {
namespace {

using testing::HasSubstr;

constexpr auto index = R"(<!doctype html><meta
  http-equiv="Content-Security-Policy"
  content="default-src 'none'; script-src 'self'"
><meta name="viewport" content="width=device-width">)";

void write(const std::filesystem::path& file, const std::string& content) {
  std::filesystem::create_directories(file.parent_path());
  std::ofstream{file, std::ios::binary} << content;
}

// A page beside a file that is not of it.
struct Folder : tests::TemporaryFolder {
  Folder() {
    write(path / "secret.txt", "secret");
    write(page() / "index.html", index);
    write(page() / "page-0123456789.js", "script");
    write(page() / "page-0123456789.js.gz", "packed");
    write(page() / "service-worker.js", "worker");
    write(page() / "sounds/end.ogg", "sound");
    write(page() / "archive.gz", "archive");
    write(page() / ".hidden/key.json", "{}");
    std::filesystem::create_symlink(path / "secret.txt", page() / "link.txt");
    std::filesystem::create_directory_symlink(path, page() / "up");
  }
  std::filesystem::path page() const { return path / "page"; }
};

struct FileRow {
  const char* name;
  const char* path;
  const char* acceptEncoding;
  const char* content;  // none where there is no such file
  std::vector<std::string> head;
};
void PrintTo(const FileRow& row, std::ostream* out) { *out << row.name; }

class Files : public testing::TestWithParam<FileRow> {
 protected:
  Folder folder;
};

TEST_P(Files, areThoseOfTheFolderAndNoOthers) {
  const auto page = loadPageFiles(folder.page());
  Request request;
  request.acceptEncoding = GetParam().acceptEncoding;
  const auto answer = page.answerTo(GetParam().path, request);
  ASSERT_EQ(answer.has_value(), GetParam().content != nullptr);
  if (!answer) return;
  EXPECT_EQ(answer->status, 200U);
  EXPECT_EQ(*answer->shared, GetParam().content);
  for (const auto& line : GetParam().head) EXPECT_THAT("\r\n" + *answer->head, HasSubstr("\r\n" + line + "\r\n"));
  EXPECT_EQ(answer->head->find("Content-Encoding"), answer->head->find("Content-Encoding: gzip\r\n"));
  EXPECT_EQ(answer->head->find("gzip") != std::string::npos, std::string_view{GetParam().content} == "packed");
}

constexpr auto forEver = "Cache-Control: public, max-age=31536000, immutable";
constexpr auto askAgain = "Cache-Control: no-cache";

INSTANTIATE_TEST_SUITE_P(
    Rows, Files,
    testing::Values(
        FileRow{"root",
                "/",
                "gzip",
                index,
                {"Content-Type: text/html; charset=utf-8", askAgain, "Referrer-Policy: no-referrer",
                 "Cross-Origin-Opener-Policy: same-origin",
                 "Content-Security-Policy: default-src 'none'; script-src 'self'; frame-ancestors 'none'"}},
        FileRow{"index", "/index.html", "", index, {askAgain}},
        FileRow{"namedByContent",
                "/page-0123456789.js",
                "br",
                "script",
                {"Content-Type: text/javascript; charset=utf-8", forEver, "Vary: Accept-Encoding",
                 "Content-Security-Policy: default-src 'none'; script-src 'self'; frame-ancestors 'none'"}},
        FileRow{"packed",
                "/page-0123456789.js",
                "br, gzip",
                "packed",
                {"Content-Type: text/javascript; charset=utf-8", forEver, "Vary: Accept-Encoding",
                 "Content-Encoding: gzip"}},
        FileRow{"packedFormItself", "/page-0123456789.js.gz", "gzip", nullptr, {}},
        FileRow{"packedAlone", "/archive.gz", "", "archive", {"Content-Type: application/octet-stream", askAgain}},
        FileRow{"ownName", "/service-worker.js", "gzip", "worker", {askAgain}},
        FileRow{"within", "/sounds/end.ogg", "", "sound", {"Content-Type: application/octet-stream"}},
        FileRow{"folder", "/sounds/", "", nullptr, {}}, FileRow{"unknown", "/page.js", "", nullptr, {}},
        FileRow{"link", "/link.txt", "", nullptr, {}}, FileRow{"throughALink", "/up/secret.txt", "", nullptr, {}},
        FileRow{"above", "/../secret.txt", "", nullptr, {}}, FileRow{"encoded", "/%69ndex.html", "", nullptr, {}},
        FileRow{"hidden", "/.hidden/key.json", "", nullptr, {}}, FileRow{"twoSlashes", "//index.html", "", nullptr, {}},
        FileRow{"nothing", "", "", nullptr, {}}),
    [](const auto& row) { return std::string{row.param.name}; });

struct FolderRow {
  const char* name;
  const char* file;  // beside an index.html, or in its place; "none" without that
  const char* content;
  std::uintmax_t size;  // to which it grows, with zeros
  const char* says;
};
void PrintTo(const FolderRow& row, std::ostream* out) { *out << row.name; }

class Folders : public testing::TestWithParam<FolderRow> {};

TEST_P(Folders, areRefusedWithASentence) {
  const tests::TemporaryFolder folder;
  if (std::string_view{GetParam().file} != "none") {
    write(folder.path / "index.html", "<p>");
    write(folder.path / GetParam().file, GetParam().content);
    if (GetParam().size > 0) std::filesystem::resize_file(folder.path / GetParam().file, GetParam().size);
  }
  try {
    loadPageFiles(folder.path);
    FAIL() << "it was taken";
  } catch (const std::runtime_error& error) {
    EXPECT_EQ(error.what(), folder.path.string() + GetParam().says);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Folders,
    testing::Values(
        FolderRow{"empty", "none", "", 0, ": has no index.html"},
        FolderRow{"oddName", "a file.js", "", 0,
                  "/a file.js: a file of a page is named with letters, digits, '-', '.', '_' and '~'"},
        FolderRow{"large", "large.wasm", "", largestPage + 1, "/large.wasm: is larger than 64 MiB"},
        FolderRow{"largeTogether", "large.wasm", "", largestPage, ": its files are larger than 64 MiB together"},
        FolderRow{"policyOfTwoLines", "index.html", "<meta content=\"a\nb\" http-equiv=\"Content-Security-Policy\">", 0,
                  "/index.html: its Content-Security-Policy must be one line of ASCII"},
        FolderRow{"policyOfNothing", "index.html", "<meta http-equiv=\"Content-Security-Policy\"><meta content=\"x\">",
                  0, "/index.html: its Content-Security-Policy must be one line of ASCII"}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(PageFiles, ofAPageWithoutAPolicyRunWhatIsTheirs) {
  const tests::TemporaryFolder folder;
  write(folder.path / "index.html", "<p>");
  EXPECT_THAT(*loadPageFiles(folder.path).answerTo("/", {})->head,
              HasSubstr("\r\nContent-Security-Policy: default-src 'self'; frame-ancestors 'none'\r\n"));
}

std::string textOf(const std::filesystem::path& file) {
  std::ifstream in{file};
  return {std::istreambuf_iterator<char>{in}, {}};
}

// nginx cannot take it from there.
TEST(PageFiles, haveThePolicyOfThePageThatNginxIsToldToo) {
  const tests::TemporaryFolder folder;
  const std::filesystem::path sources = MIVO_SOURCE_FOLDER;
  write(folder.path / "index.html", textOf(sources / "web/page/index.html"));
  const auto answer = loadPageFiles(folder.path).answerTo("/", {});
  const auto policy = answer->head->find("default-src 'none'");
  ASSERT_NE(policy, std::string::npos);
  EXPECT_THAT(textOf(sources / "tally/deploy/nginx-page.conf"),
              HasSubstr(answer->head->substr(policy, answer->head->find("\r\n", policy) - policy)));
}

// Everything once more through a socket, and beside the votes.
TEST(Page, isServedBesideTheVotes) {
  const Folder folder;
  TallyServer server{"sqlite:" + folder.file("tally.sqlite"), {"--page", folder.page().string()}};
  HttpClient client{server.port()};
  const auto page = client.get("/?shared", {"Accept-Encoding: gzip"});
  EXPECT_EQ(page.status, 200U);
  EXPECT_EQ(page.body, index);
  EXPECT_EQ(page.headers.at("x-content-type-options"), "nosniff");
  EXPECT_EQ(page.headers.at("cache-control"), "no-cache");

  const std::string script = "/page-0123456789.js";
  const auto plain = client.get(script), packed = client.get(script, {"Accept-Encoding: gzip"});
  EXPECT_EQ(packed.body, "packed");
  EXPECT_EQ(packed.headers.at("content-encoding"), "gzip");
  EXPECT_NE(plain.headers.at("etag"), packed.headers.at("etag"));
  client.send("HEAD " + script + " HTTP/1.1\r\nHost: h\r\n\r\n");
  const auto head = client.receive(false);
  EXPECT_EQ(head.headers.at("content-length"), "6");
  EXPECT_EQ(head.headers.at("etag"), plain.headers.at("etag"));

  client.send("GET / HTTP/1.1\r\nHost: h\r\nIf-None-Match: " + page.headers.at("etag") + "\r\n\r\n");
  const auto kept = client.receive(false);
  EXPECT_EQ(kept.status, 304U);
  EXPECT_FALSE(kept.headers.contains("content-length"));
  EXPECT_EQ(kept.headers.at("etag"), page.headers.at("etag"));
  EXPECT_EQ(client.get(script, {"Accept-Encoding: gzip", "If-None-Match: " + plain.headers.at("etag")}).status, 200U);

  EXPECT_EQ(client.get("/../secret.txt").status, 404U);
  EXPECT_EQ(client.get("/health").headers.at("cache-control"), "no-store");
  EXPECT_EQ(countOf(client.get("/add/app.example/feature12?delta=1", {"Sec-Fetch-Site: same-origin"})), 1);
}

// What other apps share goes to the service worker; where that is gone, nothing is taken in.
TEST(Page, takesNothingThatIsPosted) {
  const Folder folder;
  TallyServer server{"sqlite:" + folder.file("tally.sqlite"), {"--page", folder.page().string()}};
  HttpClient client{server.port()};
  client.send(
      "POST /shared HTTP/1.1\r\nHost: h\r\nContent-Type: multipart/form-data\r\nContent-Length: 200000\r\n\r\n");
  const auto answer = client.receive();
  EXPECT_EQ(answer.status, 405U);
  EXPECT_EQ(answer.body, R"({"error":"only GET and HEAD are understood"})");
  EXPECT_EQ(HttpClient{server.port()}.request("DELETE", "/index.html").status, 405U);
}

TEST(Page, isReadAgainOnASignalAndKeptWhereItCannotBe) {
  const Folder folder;
  TallyServer server{"sqlite:" + folder.file("tally.sqlite"), {"--page", folder.page().string()}};
  write(folder.page() / "service-worker.js", "newer");
  EXPECT_EQ(HttpClient{server.port()}.get("/service-worker.js").body, "worker") << "the disk is not asked";
  server.process().send(SIGHUP);
  server.process().waitForLine(R"("reloaded","text":"page")");
  EXPECT_EQ(HttpClient{server.port()}.get("/service-worker.js").body, "newer");
  std::filesystem::remove(folder.page() / "index.html");
  server.process().send(SIGHUP);
  server.process().waitForLine("has no index.html");
  EXPECT_EQ(HttpClient{server.port()}.get("/").status, 200U);
}

// A phone on a slow network has longer for a large file than for a small answer.
TEST(Page, comesSlowlyToo) {
  const Folder folder;
  constexpr std::size_t size = std::size_t{4} << 20;
  write(folder.page() / "engine.wasm", std::string(size, 'x'));
  TallyServer server{"sqlite:" + folder.file("tally.sqlite"),
                     {"--page", folder.page().string(), "--request-seconds", "1", "--idle-seconds", "1"}};
  HttpClient slow{server.port(), HttpClient::Security::plain, 4096};
  slow.send("GET /engine.wasm HTTP/1.1\r\nHost: h\r\n\r\n");
  for (int times = 0; times < 2; ++times) {  // each time a second and more has passed
    HttpClient idle{server.port()};
    EXPECT_EQ(idle.get("/health").status, 200U);
    EXPECT_EQ(idle.receiveAll(), "");
  }
  EXPECT_EQ(slow.receive().body.size(), size);
}

}  // namespace
}  // namespace mivo::tally::test
