// SPDX-License-Identifier: MIT
#include "tally/server/Metrics.h"

#include <algorithm>
#include <sstream>
#include <string_view>

namespace mivo::tally {
namespace {

void describe(std::ostream& out, std::string_view name, std::string_view type, std::string_view help) {
  out << "# HELP mivo_tally_" << name << ' ' << help << "\n# TYPE mivo_tally_" << name << ' ' << type << '\n';
}

template <class Value>
void single(std::ostream& out, std::string_view name, std::string_view type, std::string_view help, Value value) {
  describe(out, name, type, help);
  out << "mivo_tally_" << name << ' ' << value << '\n';
}

double seconds(std::int64_t microseconds) { return static_cast<double>(microseconds) / 1e6; }

}  // namespace

void Metrics::answered(unsigned status, std::chrono::microseconds duration) {
  ++answersByStatus[std::min<std::size_t>(status, highestStatus)];
  const auto bucket = std::ranges::lower_bound(bucketMicroseconds, duration.count());
  if (bucket != bucketMicroseconds.end())
    ++answersByDuration[static_cast<std::size_t>(bucket - bucketMicroseconds.begin())];
  ++answers;
  microseconds += duration.count();
}

void Metrics::batchSent(std::size_t count) {
  ++batches;
  operations += count;
}

std::string Metrics::text(const Present& present) const {
  std::ostringstream out;
  describe(out, "answers_total", "counter", "Answers by HTTP status.");
  for (std::size_t status = 0; status < answersByStatus.size(); ++status)
    if (answersByStatus[status] > 0)
      out << "mivo_tally_answers_total{status=\"" << status << "\"} " << answersByStatus[status] << '\n';
  describe(out, "votes_total", "counter", "Votes that were kept.");
  out << "mivo_tally_votes_total{delta=\"1\"} " << votesUp << "\nmivo_tally_votes_total{delta=\"-1\"} " << votesDown
      << '\n';
  describe(out, "answer_seconds", "histogram", "Time from a request's last byte to its answer.");
  std::uint64_t upTo = 0;
  for (std::size_t i = 0; i < bucketMicroseconds.size(); ++i)
    out << "mivo_tally_answer_seconds_bucket{le=\"" << seconds(bucketMicroseconds[i]) << "\"} "
        << (upTo += answersByDuration[i]) << '\n';
  out << "mivo_tally_answer_seconds_bucket{le=\"+Inf\"} " << answers << "\nmivo_tally_answer_seconds_sum "
      << seconds(microseconds) << "\nmivo_tally_answer_seconds_count " << answers << '\n';
  single(out, "store_batches_total", "counter", "Batches sent to the store.", batches);
  single(out, "store_operations_total", "counter", "Reads and votes in those batches.", operations);
  single(out, "open_connections", "gauge", "Connections that are open.", present.openConnections);
  single(out, "unfinished_handshakes", "gauge", "TLS handshakes that have begun.", present.unfinishedHandshakes);
  single(out, "unsent_bytes", "gauge", "Answers that wait until clients take them.", present.unsentBytes);
  describe(out, "connections_cut_total", "counter", "Connections that a limit turned away or cut off.");
  for (std::size_t i = 0; i < limitsReached.size(); ++i)
    out << "mivo_tally_connections_cut_total{limit=\"" << limitNames[i] << "\"} " << limitsReached[i] << '\n';
  single(out, "store_available", "gauge", "1 where a vote is likely to be kept.", present.isStoreAvailable ? 1 : 0);
  single(out, "store_damaged", "gauge", "1 where a part of the store cannot be read.", present.isStoreDamaged ? 1 : 0);
  single(out, "store_write_ahead_log_bytes", "gauge", "Size of the log that waits to be folded into the database.",
         present.writeAheadLogBytes);
  if (present.certificateDays)
    single(out, "certificate_days", "gauge", "Days until the certificate ends.", *present.certificateDays);
  single(out, "log_lines_left_out_total", "counter", "Lines of the log that nobody took.", present.logLinesLeftOut);
  return out.str();
}

}  // namespace mivo::tally
