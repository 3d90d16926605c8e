// SPDX-License-Identifier: MIT
#include "host/import/Columns.h"

#include <algorithm>
#include <array>

#include "host/dates/NamedLength.h"
#include "host/history/Header.h"
#include "mivo/model/Date.h"
#include "mivo/weights/WeightUnits.h"

namespace mivo::host {
namespace {

struct KnownName {
  std::string_view name;  // as `plainHeader` gives it
  Role role;
};

constexpr std::array<KnownName, 64> knownNames{{{"start", Role::start},
                                                {"started", Role::start},
                                                {"begin", Role::start},
                                                {"faststart", Role::start},
                                                {"from", Role::start},
                                                {"startdtm", Role::start},
                                                {"enddtm", Role::end},
                                                {"startdate", Role::startDate},
                                                {"starttime", Role::startTime},
                                                {"end", Role::end},
                                                {"ended", Role::end},
                                                {"finish", Role::end},
                                                {"stop", Role::end},
                                                {"fastend", Role::end},
                                                {"to", Role::end},
                                                {"enddate", Role::endDate},
                                                {"endtime", Role::endTime},
                                                {"datetime", Role::when},
                                                {"date/time", Role::when},
                                                {"timestamp", Role::when},
                                                {"timeofmeasurement", Role::when},
                                                {"logdate", Role::when},
                                                {"logdtm", Role::when},
                                                {"ts", Role::when},
                                                {"date", Role::date},
                                                {"datum", Role::date},
                                                {"fecha", Role::date},
                                                {"data", Role::date},
                                                {"dato", Role::date},
                                                {"time", Role::time},
                                                {"uhrzeit", Role::time},
                                                {"zeit", Role::time},
                                                {"hora", Role::time},
                                                {"heure", Role::time},
                                                {"ora", Role::time},
                                                {"tijd", Role::time},
                                                {"duration", Role::length},
                                                {"length", Role::length},
                                                {"hours", Role::length},
                                                {"fastduration", Role::length},
                                                {"fastingduration", Role::length},
                                                {"goal", Role::goal},
                                                {"target", Role::goal},
                                                {"note", Role::note},
                                                {"notes", Role::note},
                                                {"comment", Role::note},
                                                {"comments", Role::note},
                                                {"weight", Role::weight},
                                                {"bodyweight", Role::weight},
                                                {"bodymass", Role::weight},
                                                {"value", Role::weight},
                                                {"gewicht", Role::weight},
                                                {"körpergewicht", Role::weight},
                                                {"peso", Role::weight},
                                                {"poids", Role::weight},
                                                {"vikt", Role::weight},
                                                {"vægt", Role::weight},
                                                {"waga", Role::weight},
                                                {"unit", Role::weightUnit},
                                                {"units", Role::weightUnit},
                                                {"weightunit", Role::weightUnit},
                                                {"timeoffset", Role::utcOffset},
                                                {"timezoneoffset", Role::utcOffset},
                                                {"utcoffset", Role::utcOffset}}};

/// A name without the brackets behind it, and what stands in them.
struct Explained {
  std::string name, brackets;
};

Explained explained(std::string name) {
  if (name.empty() || (name.back() != ')' && name.back() != ']')) return {std::move(name), ""};
  const std::size_t open = name.rfind(name.back() == ')' ? '(' : '[');
  if (open == std::string::npos) return {std::move(name), ""};
  return {name.substr(0, open), name.substr(open + 1, name.size() - open - 2)};
}

std::optional<Role> roleNamed(std::string_view name) {
  const auto* const known = std::ranges::find(knownNames, name, &KnownName::name);
  return known == knownNames.end() ? std::nullopt : std::optional{known->role};
}

/// The unit of a weight at the end of a name, which is taken off it: "weightinkg" becomes "weight".
std::optional<WeightUnit> takeWeightUnitAtEnd(std::string_view& name) {
  for (const std::string_view unit : {"pounds", "stones", "stone", "lbs", "kgs", "kg", "lb", "st"}) {
    if (!name.ends_with(unit)) continue;
    name.remove_suffix(unit.size());
    if (name.ends_with("in")) name.remove_suffix(2);
    return weightUnitNamed(unit);
  }
  return std::nullopt;
}

/// A column whose name is known as it stands, or without a unit at its end.
std::optional<ImportColumn> columnNamed(std::string_view name) {
  if (const auto role = roleNamed(name)) {
    ImportColumn column{.role = *role};
    if (name == "hours") column.secondsPerUnit = secondsPerHour;
    return column;
  }
  std::string_view base = name;
  if (const auto unit = takeWeightUnitAtEnd(base); unit && (base.empty() || roleNamed(base) == Role::weight))
    return ImportColumn{.role = Role::weight, .unit = unit};
  if (const auto unit = lengthUnitAtEnd(name)) {
    const auto role = roleNamed(name.substr(0, name.size() - unit->name.size()));
    if (role == Role::length || role == Role::goal) return ImportColumn{.role = *role, .secondsPerUnit = unit->seconds};
  }
  return std::nullopt;
}

std::optional<ImportColumn> readColumn(std::string_view header) {
  if (header.starts_with('#')) header.remove_prefix(1);
  const auto [name, brackets] = explained(plainHeader(header));
  auto column = columnNamed(name);
  // "com.maker.health.weight": what stands before the last point is the maker's.
  if (!column && name.find('.') != std::string::npos) column = columnNamed(name.substr(name.rfind('.') + 1));
  if (!column) return std::nullopt;
  if (column->role == Role::weight && !brackets.empty())
    if (const auto unit = weightUnitAtEnd(brackets)) column->unit = unit;
  if (const auto unit = lengthUnitAtEnd(brackets); unit && (column->role == Role::length || column->role == Role::goal))
    column->secondsPerUnit = unit->seconds;
  column->name = header;
  return column;
}

template <class... Roles>
bool hasAny(const ImportColumns& columns, Roles... roles) {
  return (columns.place(roles).has_value() || ...);
}

/// Whether the only weight is a "value", which may be one of anything.
bool onlySaysValue(const ImportColumns& columns) {
  return std::ranges::all_of(columns.known, [](const ImportColumn& column) {
    return column.role != Role::weight || plainHeader(column.name).starts_with("value");
  });
}

bool isOfWeights(const ImportColumns& columns) {
  return hasAny(columns, Role::weight) &&
         hasAny(columns, Role::when, Role::date, Role::time, Role::startDate, Role::startTime, Role::start);
}

bool isOfFasts(const ImportColumns& columns) {
  return hasAny(columns, Role::start, Role::startDate, Role::startTime) &&
         hasAny(columns, Role::end, Role::endDate, Role::endTime, Role::length);
}

/// A scale that tells bones and muscles, in this app's own spelling, writes kilograms.
void assumeKilogramsOfItsApp(ImportColumns& columns) {
  const auto has = [&](std::string_view name) {
    return std::ranges::find(columns.unused, name) != columns.unused.end();
  };
  if (!has("biceps") || !has("bone") || !has("fat")) return;
  for (ImportColumn& column : columns.known)
    if (column.role == Role::weight && !column.unit) column.unit = WeightUnit::kilograms;
}

constexpr bool isForWeights(Role role) {
  return role != Role::end && role != Role::endDate && role != Role::endTime && role != Role::length &&
         role != Role::goal && role != Role::note;
}

constexpr bool isForFasts(Role role) { return role != Role::weight && role != Role::weightUnit && role != Role::when; }

/// Leaves only what the table's records are made of.
void dropOthers(ImportColumns& columns) {
  std::erase_if(columns.known, [&](const ImportColumn& column) {
    const bool isUsed = columns.areWeights ? isForWeights(column.role) : isForFasts(column.role);
    if (!isUsed) columns.unused.push_back(column.name);
    return !isUsed;
  });
}

}  // namespace

std::optional<std::size_t> ImportColumns::place(Role role) const {
  const auto found = std::ranges::find(known, role, &ImportColumn::role);
  return found == known.end() ? std::nullopt : std::optional{static_cast<std::size_t>(found - known.begin())};
}

std::optional<ImportColumns> readColumns(std::span<const std::string_view> header) {
  ImportColumns columns{.fieldCount = header.size()};
  for (std::size_t index = 0; index < header.size(); ++index) {
    auto column = readColumn(header[index]);
    const bool isFirst = column && (column->role == Role::weight || !columns.place(column->role));
    if (!isFirst) {
      if (!header[index].empty()) columns.unused.emplace_back(header[index]);
      continue;
    }
    column->index = index;
    columns.known.push_back(std::move(*column));
  }
  const bool areFasts = isOfFasts(columns);
  columns.areWeights = isOfWeights(columns) && !(areFasts && onlySaysValue(columns));
  if (!columns.areWeights && !areFasts) return std::nullopt;
  assumeKilogramsOfItsApp(columns);
  dropOthers(columns);
  return columns;
}

std::vector<std::string> splitLine(std::string_view line, char separator) {
  std::vector<std::string> fields(1);
  bool isQuoted = false;
  for (const char c : line) {
    if (c == '"')
      isQuoted = !isQuoted;
    else if (c == separator && !isQuoted)
      fields.emplace_back();
    else
      fields.back() += c;
  }
  for (std::string& field : fields) {
    field.erase(0, std::min(field.find_first_not_of(" \t"), field.size()));
    field.erase(field.find_last_not_of(" \t") + 1);
  }
  return fields;
}

}  // namespace mivo::host
