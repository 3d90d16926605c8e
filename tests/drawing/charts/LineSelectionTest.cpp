// SPDX-License-Identifier: MIT
#include "drawing/charts/LineSelection.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mivo::drawing {
namespace {

using testing::ElementsAre;

Date day(double days) { return Date{Duration{days * secondsPerDay}}; }

const std::vector<LineSeries> lines{{.points = {{day(1), 70}, {day(3), 71}}},
                                    {.points = {{day(1), 16}, {day(2), 17}, {day(5), 18}}}};

struct StepRow {
  const char* name;
  std::vector<std::optional<LinePoint>> selected;
  int step;
  std::optional<Date> expected;
};
void PrintTo(const StepRow& row, std::ostream* out) { *out << row.name; }

class Step : public testing::TestWithParam<StepRow> {};

TEST_P(Step, goesToTheNextDateOfAnyLine) {
  EXPECT_EQ(steppedDate(lines, GetParam().selected, GetParam().step), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Step,
    testing::Values(StepRow{"fromNothingToTheLatest", {{}, {}}, -1, day(5)},
                    StepRow{"onwards", {LinePoint{day(1), 70}, LinePoint{day(1), 16}}, 1, day(2)},
                    StepRow{"toTheOtherLine", {{}, LinePoint{day(2), 17}}, 1, day(3)},
                    StepRow{"fromTheLaterOfTwo", {LinePoint{day(3), 71}, LinePoint{day(2), 17}}, 1, day(5)},
                    StepRow{"back", {LinePoint{day(3), 71}, {}}, -1, day(2)},
                    StepRow{"notBeyondTheLatest", {{}, LinePoint{day(5), 18}}, 1, std::nullopt},
                    StepRow{"norBeforeTheFirst", {LinePoint{day(1), 70}, {}}, -1, std::nullopt},
                    StepRow{"nowhere", {LinePoint{day(3), 71}, {}}, 0, std::nullopt}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(EndDate, isTheFirstOrTheLatestOfAnyLine) {
  EXPECT_EQ(endDate(lines, true), day(5));
  EXPECT_EQ(endDate(lines, false), day(1));
  const std::vector<LineSeries> none(2);
  EXPECT_EQ(endDate(none, true), std::nullopt);
  EXPECT_EQ(steppedDate(none, {}, 1), std::nullopt);
}

constexpr LinePlot week{.width = 280, .top = 64, .bottom = 150, .visible = {Date{}, Date{Duration{7 * 86400}}}};

TEST(SelectionRule, standsAtTheFirstSelectedPointInSight) {
  const auto rule = [](std::optional<LinePoint> weight, std::optional<LinePoint> fasting) {
    const std::array selected{weight, fasting};
    return selectionRule(selected, week);
  };
  EXPECT_EQ(rule({}, {}), std::nullopt);
  EXPECT_EQ(rule({}, LinePoint{day(3.5), 1}), 140);
  EXPECT_EQ(rule(LinePoint{day(1), 1}, LinePoint{day(2), 1}), 40);
  EXPECT_EQ(rule(LinePoint{day(7), 1}, {}), 280) << "at the edge";
  EXPECT_EQ(rule(LinePoint{day(7.1), 1}, {}), std::nullopt) << "scrolled away";
  EXPECT_EQ(rule(LinePoint{day(-0.1), 1}, {}), std::nullopt);
}

TEST(TouchedDate, staysInThePlot) {
  EXPECT_EQ(touchedDate(week, 140), day(3.5));
  EXPECT_EQ(touchedDate(week, -30), day(0));
  EXPECT_EQ(touchedDate(week, 300), day(7));
}

double measured(std::string_view text) { return static_cast<double>(text.size()) * 10; }

AnnotationBox box(const Annotation& annotation, double ruleX) {
  return annotationBox(annotation, ruleX, 280, 312, measured, measured);
}

TEST(AnnotationBox, isCentredOnTheRuleAndKeptInsideThePlot) {
  const Annotation small{"Sun 1", {"72.4 kg"}};
  EXPECT_EQ(box(small, 140).width, 160) << "never narrower";
  EXPECT_EQ(box(small, 140).x, 60);
  EXPECT_EQ(box(small, 10).x, 0);
  EXPECT_EQ(box(small, 275).x, 120);
  EXPECT_EQ(box({"Sunday 1 March 26", {"1"}}, 140).width, 194) << "as wide as the date and its padding";
  EXPECT_EQ(box({"Sunday 1 March 2026, around noon", {"1"}}, 140).width, 312) << "no wider than the item";
}

TEST(AnnotationBox, standsBesideItsPointAndInsideThePlot) {
  const LinePlot weight{.width = 280, .top = 8, .bottom = 144, .visible = {day(0), day(7)}};
  const auto beside = [&](Point point, double textWidth) {
    const auto width = [textWidth](std::string_view) { return textWidth; };
    return annotationBeside({"Sun 1", {"72.4 kg"}}, point, weight, width, width);
  };
  for (const double textWidth : {60.0, 100.0, 240.0})
    for (double x = 0; x <= 280; x += 10)
      for (double y = 8; y <= 144; y += 8) {
        const AnnotationBox box = beside({x, y}, textWidth);
        EXPECT_GE(box.x, 0);
        EXPECT_LE(box.x + box.width, 280);
        EXPECT_GE(box.y, 8);
        EXPECT_LE(box.y + AnnotationBox::height, 144);
        const double reach = selectedMarkRadius;
        EXPECT_FALSE(box.x < x + reach && x - reach < box.x + box.width && box.y < y + reach &&
                     y - reach < box.y + AnnotationBox::height)
            << "over the point at " << x << ", " << y;
      }
  EXPECT_EQ(beside({60, 80}, 60).x, 71.5) << "after it, where there is more room";
  EXPECT_EQ(beside({60, 80}, 60).y, 57) << "in the middle beside it";
  EXPECT_EQ(beside({220, 80}, 60).x + beside({220, 80}, 60).width, 208.5);
  EXPECT_EQ(beside({140, 100}, 240).y, 42.5) << "over it, where neither side has room";
  EXPECT_EQ(beside({60, 80}, 60).values[0].mark, 71.5 + 17);
}

TEST(AnnotationBox, putsValuesBesideEachOtherEachBehindItsMark) {
  using Value = AnnotationBox::Value;
  EXPECT_THAT(box({"Sun", {"72.4", "16h"}}, 80).values, ElementsAre(Value{0, 17, 28}, Value{1, 83, 94}));
  EXPECT_THAT(box({"Sun", {"", "16h"}}, 80).values, ElementsAre(Value{1, 17, 28}));
  EXPECT_EQ(box({"Sun", {"72.4 kg", "16h 12m"}}, 80).width, 206) << "two marks, two texts, what is between, padding";
}

}  // namespace
}  // namespace mivo::drawing
