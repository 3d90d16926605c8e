// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <fstream>

#include "tests/support/TemporaryFolder.h"
#include "tests/tally_support/Certificate.h"
#include "tests/tally_support/HttpClient.h"
#include "tests/tally_support/TallyServer.h"

namespace mivo::tally::test {
namespace {

using testing::HasSubstr;
constexpr auto tls = HttpClient::Security::tls;

CertificateFiles madeIn(const tests::TemporaryFolder& folder) {
  CertificateFiles files{folder.file("certificate.pem"), folder.file("key.pem")};
  makeCertificate(files, 1);
  return files;
}

struct Fixture : testing::Test {
  tests::TemporaryFolder folder;
  CertificateFiles files = madeIn(folder);
  TallyServer server{"sqlite:" + folder.file("tally.sqlite"), {"--certificate", files.certificate, "--key", files.key}};
};

using TlsTest = Fixture;

TEST_F(TlsTest, votesAndPipelinesAsInPlainHttp) {
  HttpClient client{server.port(), tls};
  EXPECT_EQ(countOf(client.get("/add/a/feature1?delta=1")), 1);
  std::string all;
  constexpr int times = 500;
  for (int i = 0; i < times; ++i) all += "GET /get/a/feature1 HTTP/1.1\r\nHost: h\r\n\r\n";
  client.send(all);
  for (int i = 0; i < times; ++i) ASSERT_EQ(countOf(client.receive()), 1);
  EXPECT_EQ(client.get("/health", {"Connection: close"}).status, 200U);
  EXPECT_EQ(client.receiveAll(), "");
}

TEST_F(TlsTest, votesUnderTheNamesOfItsCertificate) {
  const auto statusOf = [&](const std::string& host) {
    HttpClient client{server.port(), tls};
    client.send("GET /add/a/feature1?delta=1 HTTP/1.1\r\nHost: " + host + "\r\n\r\n");
    return client.receive().status;
  };
  EXPECT_EQ(statusOf("tally.example"), 200U);
  EXPECT_EQ(statusOf("198.51.100.7:443"), 200U);
  EXPECT_EQ(statusOf("evil.example"), 421U);
}

// Whoever records a connection and steals the key later could read it: only a key of RSA allows for that at all.
TEST_F(TlsTest, keepsThePastSecretWhereTheKeyIsStolen) {
  const CertificateFiles rsa{folder.file("rsa.pem"), folder.file("rsa-key.pem")};
  makeCertificate(rsa, 1, std::chrono::days{1}, KeyKind::rsa);
  TallyServer strict{"sqlite:" + folder.file("strict.sqlite"), {"--certificate", rsa.certificate, "--key", rsa.key}};
  EXPECT_EQ((HttpClient{strict.port(), HttpClient::Security::tls12}.get("/health").status), 200U);
  EXPECT_THROW((HttpClient{strict.port(), HttpClient::Security::tls12WithoutForwardSecrecy}), std::runtime_error);
}

TEST_F(TlsTest, hangUpBringsANewCertificateAndKeepsOpenConnections) {
  HttpClient before{server.port(), tls};
  EXPECT_EQ(before.certificateSerial(), 1);
  makeCertificate(files, 2);
  server.process().send(SIGHUP);
  server.process().waitForLine("\"reloaded\"");
  EXPECT_EQ((HttpClient{server.port(), tls}.certificateSerial()), 2);
  EXPECT_EQ(before.get("/health").status, 200U);
}

TEST_F(TlsTest, aBrokenCertificateChangesNothing) {
  std::ofstream{files.certificate} << "nonsense";
  server.process().send(SIGHUP);
  EXPECT_THAT(server.process().waitForLine("\"not reloaded\""), HasSubstr("certificate.pem: "));
  EXPECT_EQ((HttpClient{server.port(), tls}.certificateSerial()), 1);
}

TEST_F(TlsTest, aBrokenRoadmapKeepsNoCertificateFromBeingRenewed) {
  const auto roadmap = folder.file("roadmap.json");
  std::ofstream{roadmap} << "[]";
  TallyServer both{"sqlite:" + folder.file("both.sqlite"),
                   {"--certificate", files.certificate, "--key", files.key, "--roadmap", roadmap}};
  std::ofstream{roadmap} << "nonsense";
  makeCertificate(files, 2);
  both.process().send(SIGHUP);
  both.process().waitForLine("\"not reloaded\"");
  HttpClient client{both.port(), tls};
  EXPECT_EQ(client.certificateSerial(), 2);
  EXPECT_EQ(client.get("/data/roadmap-mivo.json").body, "[]");
}

TEST_F(TlsTest, dropsWhoSpeaksPlainHttpOrNothing) {
  TallyServer hasty{"sqlite:" + folder.file("hasty.sqlite"),
                    {"--certificate", files.certificate, "--key", files.key, "--request-seconds", "2"}};
  HttpClient plain{hasty.port()};
  plain.send("GET /health HTTP/1.1\r\nHost: h\r\n\r\n");
  EXPECT_EQ(plain.receiveAll().find("HTTP/1.1 200"), std::string::npos);
  HttpClient silent{hasty.port()};
  EXPECT_EQ(silent.receiveAll(), "");
  EXPECT_EQ((HttpClient{hasty.port(), tls}.get("/health").status), 200U);
}

// Who connects and never greets holds a place as the silent do, and gives way as they do.
TEST_F(TlsTest, dropsWhoNeverGreetsForWhoDoes) {
  TallyServer small{
      "sqlite:" + folder.file("small.sqlite"),
      {"--certificate", files.certificate, "--key", files.key, "--request-seconds", "60", "--max-connections", "2"}};
  HttpClient first{small.port()};
  HttpClient second{small.port()};
  EXPECT_EQ((HttpClient{small.port(), tls}.get("/health").status), 200U);
  EXPECT_EQ(first.receiveAll(), "");
}

}  // namespace
}  // namespace mivo::tally::test
