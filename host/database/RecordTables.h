// SPDX-License-Identifier: MIT
#pragma once

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <string>
#include <string_view>
#include <vector>

#include "host/history/History.h"

namespace mivo::host {

/// The columns of a fast and of a weight, in the order in which the functions below take and give them.
inline constexpr const char* fastColumns = "id, startedAt, endedAt, goalSeconds, note";
inline constexpr const char* weightColumns = "id, weighedAt, weightInKg";

/// A row that begins with those columns.
FastRecord fastRecord(SQLite::Statement& row);
BodyWeightSample weightSample(SQLite::Statement& row);

/// Everything: fasts by start and weights by date, those of one instant in the order in which they were added.
History readHistory(SQLite::Database& database);
std::vector<BodyWeightSample> readWeights(SQLite::Database& database);

/// Gives records to any table that has their columns; `fixed` names another column and its value, as in
/// "isAdded", "0". They may be in any order, and are written fastest where their ids ascend. Throws SQLite::Exception;
/// some may be written then.
struct FixedColumn {
  std::string_view name, value;
};
void insertAll(SQLite::Database& database, std::string_view table, const std::vector<FastRecord>& fasts,
               const FixedColumn& fixed = {});
void insertAll(SQLite::Database& database, std::string_view table, const std::vector<BodyWeightSample>& weights,
               const FixedColumn& fixed = {});

/// Takes records out of the history. Throws DatabaseError where one is not there as it is given, and
/// SQLite::Exception; some may be gone then.
void removeAll(SQLite::Database& database, const std::vector<FastRecord>& fasts);
void removeAll(SQLite::Database& database, const std::vector<BodyWeightSample>& weights);

}  // namespace mivo::host
