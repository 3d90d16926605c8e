// SPDX-License-Identifier: MIT
// Prints the types of a report in TypeScript, as `reportJson` writes it.
#include <iostream>
#include <string>
#include <variant>

#include "host/report/Report.h"
#include "host/report/ReportFields.h"
#include "web/types/Types.h"

namespace mivo::web {

template <>
StatsContainer blank() {
  return StatsContainer::empty();
}
template <>
ScrollChartFeature::State blank() {
  return StatsContainer::empty().fastingChartState;
}
template <>
ChartDataEntry blank() {
  return {DateInterval{}, 0, "", UUID{}};
}

namespace {

template <class... Content>
std::string contentsOf(Types& types, const std::variant<Content...>*) {
  std::string all;
  ((all += (all.empty() ? "" : " | ") + types.nameOf<Content>()), ...);
  return all;
}

int writeTypes(std::ostream& out) {
  Types types{"Instant"};
  out << "// Written from the records of host/report; changes here are lost.\n\n"
         "/** RFC 3339, in UTC. */\nexport type Instant = string;\nexport type UUID = string;\n\n"
         "/** What `mivo report --format json` prints. */\nexport interface Report {\n  readonly now: Instant;\n"
      << "  readonly timeRange: " << types.nameOf<TimeRange>()
      << ";\n  readonly stats: " << types.nameOf<StatsContainer>()
      << ";\n  /** In the order of the zones. */\n  readonly trends: readonly " << types.nameOf<ZoneTrendDisplay>()
      << "[];\n  /** In their order on the screen. */\n  readonly screen: readonly Card[];\n}\n\n"
      << "export type Card = { readonly card: " << types.nameOf<CardKind>() << " } & ("
      << contentsOf(types, static_cast<const CardContent*>(nullptr)) << ");\n";
  types.write(out);
  if (types.hasClash) std::cerr << "writeReportTypes: two types have the same name\n";
  return types.hasClash || !out.flush() ? 1 : 0;
}

}  // namespace
}  // namespace mivo::web

int main() { return mivo::web::writeTypes(std::cout); }
