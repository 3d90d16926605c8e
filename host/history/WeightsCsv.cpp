// SPDX-License-Identifier: MIT
#include "host/history/WeightsCsv.h"

#include <array>
#include <span>
#include <utility>

#include "host/dates/DateText.h"
#include "host/history/CsvTable.h"
#include "host/history/FieldRules.h"
#include "host/history/Header.h"
#include "host/history/History.h"
#include "mivo/weights/WeightText.h"

namespace mivo::host {
namespace {

enum class Role { date, weight };

constexpr std::array<HeaderName<Role>, 28> headerNames{{{"date", Role::date},
                                                        {"datetime", Role::date},
                                                        {"date/time", Role::date},
                                                        {"time", Role::date},
                                                        {"timestamp", Role::date},
                                                        {"startdate", Role::date},
                                                        {"timeofmeasurement", Role::date},
                                                        {"logdate", Role::date},
                                                        {"weight", Role::weight},
                                                        {"weight(kg)", Role::weight},
                                                        {"weightkg", Role::weight},
                                                        {"weightinkg", Role::weight},
                                                        {"kg", Role::weight},
                                                        {"weight(lb)", Role::weight},
                                                        {"weight(lbs)", Role::weight},
                                                        {"weight(inlbs)", Role::weight},
                                                        {"weightlb", Role::weight},
                                                        {"weightlbs", Role::weight},
                                                        {"lb", Role::weight},
                                                        {"lbs", Role::weight},
                                                        {"pounds", Role::weight},
                                                        {"weight(st)", Role::weight},
                                                        {"weightst", Role::weight},
                                                        {"bodyweight", Role::weight},
                                                        {"bodyweight(kg)", Role::weight},
                                                        {"bodymass", Role::weight},
                                                        {"bodymass(kg)", Role::weight},
                                                        {"value", Role::weight}}};

bool saysNotWeighed(std::string_view cell) { return cell.empty() || cell == "NA" || cell == "--" || cell == "null"; }

class WeightsReader {
 public:
  WeightsReader(const std::string& fileName, const adapters::TimeZone& timeZone, std::optional<WeightUnit> fallback,
                const UUIDGenerator& uuids)
      : file{fileName}, zone{timeZone}, ids{uuids}, unit{fallback} {}

  std::optional<BadRecord> row(const CsvRow& row) {
    if (fieldCount == 0) return header(row);
    if (auto bad = wrongFieldCount(row, fieldCount, file)) return bad;
    if (saysNotWeighed(row.fields[weight.index])) return std::nullopt;
    return sample(row);
  }

  std::vector<BodyWeightSample> samples;
  bool hasHeader() const { return fieldCount > 0; }

 private:
  std::optional<BadRecord> header(const CsvRow& row) {
    std::optional<BadRecord> bad;
    const std::span<const HeaderName<Role>> names{headerNames};
    const auto dateColumn = column(row, names, Role::date, file, bad);
    const auto weightColumn = column(row, names, Role::weight, file, bad);
    if (bad) return bad;
    if (!dateColumn || !weightColumn)
      return BadRecord{file, row.line, "header", quotable(joined(row)),
                       "expected the columns \"date\" and \"weight_kg\""};
    date = *dateColumn;
    weight = *weightColumn;
    std::string plain = plainHeader(weight.name);
    if (plain.ends_with(')')) plain.pop_back();
    if (const auto named = weightUnitAtEnd(plain)) unit = named;
    fieldCount = row.fields.size();
    return std::nullopt;
  }

  std::optional<BadRecord> sample(const CsvRow& row) {
    const auto dateText = parseDateText(row.fields[date.index]);
    const auto when = dateText ? instant(*dateText, zone) : std::nullopt;
    if (!when) return bad(row, date, expectedDate);
    const auto read = readWeight(row.fields[weight.index], unit);
    const double* const weightInKg = std::get_if<double>(&read);
    if (!weightInKg && std::get<WeightTextFault>(read) == WeightTextFault::noUnit)
      return bad(row, weight, "expected a unit in the header or the cell: kg, lb or st");
    if (!weightInKg || !isBodyWeight(*weightInKg)) return bad(row, weight, expectedWeight);
    samples.push_back({ids.next(), *when, *weightInKg});
    return std::nullopt;
  }

  BadRecord bad(const CsvRow& row, const Column& column, std::string_view reason) const {
    return {file, row.line, column.name, quotable(row.fields[column.index]), std::string{reason}};
  }

  const std::string& file;
  const adapters::TimeZone& zone;
  const UUIDGenerator& ids;
  std::optional<WeightUnit> unit;
  std::size_t fieldCount = 0;
  Column date, weight;
};

}  // namespace

tl::expected<std::vector<BodyWeightSample>, BadRecord> readWeightsCsv(std::string_view text, const std::string& file,
                                                                      const adapters::TimeZone& zone,
                                                                      std::optional<WeightUnit> unit,
                                                                      const UUIDGenerator& ids) {
  WeightsReader reader{file, zone, unit, ids};
  auto bad = readCsv(text, csvSeparator(text), file, [&](const CsvRow& row) { return reader.row(row); });
  if (!bad && !reader.hasHeader())
    bad = BadRecord{.file = file,
                    .reason = "expected a header with the columns \"date\" and \"weight_kg\", found an empty file"};
  if (bad) return tl::unexpected{std::move(*bad)};
  sortByDate(reader.samples);
  return std::move(reader.samples);
}

}  // namespace mivo::host
