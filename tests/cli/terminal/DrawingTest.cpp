// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "cli/terminal/Bars.h"
#include "cli/terminal/DotPlot.h"
#include "cli/terminal/Paint.h"

namespace mivo::cli {
namespace {

TEST(Bar, isDrawnToAnEighthOfAColumn) {
  EXPECT_EQ(bar(1, 4), "████");
  EXPECT_EQ(bar(0.5, 4), "██");
  EXPECT_EQ(bar(0.40625, 4), "█▋");
  EXPECT_EQ(bar(0, 4), "");
  EXPECT_EQ(bar(1e-9, 4), "▏");
}

TEST(Bar, holdsWhatIsNoFraction) {
  EXPECT_EQ(bar(7, 3), "███");
  EXPECT_EQ(bar(std::numeric_limits<double>::infinity(), 3), "███");
  EXPECT_EQ(bar(-1, 3), "");
  EXPECT_EQ(bar(std::nan(""), 3), "");
}

using Lines = std::vector<std::string>;

TEST(DotPlot, drawsFromTheLowerLeftCorner) {
  DotPlot corners{2, 2};
  corners.point(0, 0);
  corners.point(1, 1);
  EXPECT_EQ(corners.lines(), (Lines{" ⠈", "⡀ "}));

  DotPlot diagonal{2, 1};
  diagonal.line(0, 1, 1, 0);
  EXPECT_EQ(diagonal.lines(), Lines{"⠑⢄"});
}

TEST(DotPlot, leavesOutWhatLiesOutside) {
  DotPlot plot{1, 1};
  plot.point(-0.1, 0.5);
  plot.point(0.5, std::nan(""));
  plot.line(0, 0, std::numeric_limits<double>::infinity(), 0);
  EXPECT_EQ(plot.lines(), Lines{" "});
}

TEST(Paint, colourIsAddedToWhatTheTextSays) {
  EXPECT_EQ(Paint{true}(Ink::strong, "12h"), "\x1B[1m12h\x1B[0m");
  EXPECT_EQ(Paint{true}(Ink::plain, "12h"), "12h");
  EXPECT_EQ(Paint{true}(Ink::strong, ""), "");
  EXPECT_EQ(Paint{false}(Ink::strong, "12h"), "12h");
}

}  // namespace
}  // namespace mivo::cli
