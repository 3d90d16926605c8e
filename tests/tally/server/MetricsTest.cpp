// SPDX-License-Identifier: MIT
#include "tally/server/Metrics.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mivo::tally {
namespace {

using std::chrono::microseconds;
using testing::HasSubstr;

TEST(MetricsTest, countsAnswersVotesAndBatches) {
  Metrics metrics;
  metrics.answered(200, microseconds{100});
  metrics.answered(200, microseconds{101});
  metrics.answered(503, microseconds{2'000'000});
  metrics.answered(599, microseconds{2'000'000});
  metrics.answered(1000, microseconds{2'000'000});
  metrics.voted(1);
  metrics.voted(1);
  metrics.voted(-1);
  metrics.batchSent(3);
  metrics.reached(Limit::connections);
  metrics.reached(Limit::unsent);
  metrics.reached(Limit::unsent);
  const auto text = metrics.text({.openConnections = 4,
                                  .unfinishedHandshakes = 6,
                                  .unsentBytes = 7,
                                  .isStoreAvailable = true,
                                  .isStoreDamaged = true,
                                  .writeAheadLogBytes = 4096,
                                  .logLinesLeftOut = 5,
                                  .certificateDays = 8});
  for (const auto* line : {"answers_total{status=\"200\"} 2",
                           "answers_total{status=\"503\"} 1",
                           "answers_total{status=\"599\"} 2",
                           "votes_total{delta=\"1\"} 2",
                           "votes_total{delta=\"-1\"} 1",
                           "answer_seconds_bucket{le=\"0.0001\"} 1",
                           "answer_seconds_bucket{le=\"0.00025\"} 2",
                           "answer_seconds_bucket{le=\"1\"} 2",
                           "answer_seconds_bucket{le=\"+Inf\"} 5",
                           "answer_seconds_count 5",
                           "store_batches_total 1",
                           "store_operations_total 3",
                           "open_connections 4",
                           "store_available 1",
                           "store_damaged 1",
                           "log_lines_left_out_total 5",
                           "certificate_days 8",
                           "unfinished_handshakes 6",
                           "unsent_bytes 7",
                           "connections_cut_total{limit=\"connections\"} 1",
                           "connections_cut_total{limit=\"unsent\"} 2",
                           "store_write_ahead_log_bytes 4096"})
    EXPECT_THAT(text, HasSubstr("\nmivo_tally_" + std::string{line} + '\n'));
}

}  // namespace
}  // namespace mivo::tally
