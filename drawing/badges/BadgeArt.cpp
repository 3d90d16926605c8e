// SPDX-License-Identifier: MIT
#include "drawing/badges/BadgeArt.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "drawing/badges/BadgePaths.h"
#include "mivo/achievements/Badges.h"

namespace mivo::drawing {
namespace {

struct MilestoneColors {
  const char *high, *middle, *low, *ink;
};
constexpr std::array<MilestoneColors, 4> milestoneTiers{{{"#F7D9BF", "#E0A97F", "#AD6B41", "#4A230C"},
                                                         {"#F4F6FA", "#CDD3DE", "#8E97A8", "#262C38"},
                                                         {"#FFF0BF", "#F0CB62", "#B98516", "#4A3100"},
                                                         {"#D8F3F0", "#A9A6F5", "#5A55CF", "#1B1557"}}};

struct GreyColors {
  const char *rimTop, *rimBottom, *discTop, *discBottom, *mark, *number, *hexagonEdge, *hexagon;
};
constexpr GreyColors greyLight{"#EAE8E3", "#DAD7D0", "#F4F2EE", "#EAE8E3", "#C4C1B9", "#66646E", "#DAD7D0", "#EDEBE6"};
constexpr GreyColors greyDark{"#25252C", "#34343D", "#2A2A32", "#25252C", "#4A4A55", "#9694A1", "#34343D", "#26262E"};

const GreyColors& grey(bool dark) { return dark ? greyDark : greyLight; }

struct Mark {
  double x, y, size;
};
using Marks = std::array<Mark, 3>;
constexpr std::array<Marks, 3> stars{
    {{{{48, 27.5, 7.2}}}, {{{39, 28.5, 7.2}, {57, 28.5, 7.2}}}, {{{31.5, 31, 6.6}, {48, 26, 6.6}, {64.5, 31, 6.6}}}}};
// The middle flame of three is drawn last, over its neighbours; a flame stands on its y.
constexpr std::array<Marks, 3> flames{
    {{{{48, 55, 37}}}, {{{36.5, 55, 31}, {59.5, 55, 31}}}, {{{28.5, 55.5, 25}, {67.5, 55.5, 25}, {48, 55, 36}}}}};

constexpr double flameGrid = 24, flameFoot = 22.9;

std::string joined(std::initializer_list<std::string_view> parts) {
  std::string text;
  for (const std::string_view part : parts) text += part;
  return text;
}

// Of a number from 0 on, as SVG reads it. `std::to_chars` of a double would bring tables of 100 KB into a module.
std::string digits(double number) {
  constexpr std::int64_t one = 10000;
  const std::int64_t rounded = std::llround(number * static_cast<double>(one));
  std::string decimals = std::to_string(one + rounded % one);
  decimals.front() = '.';
  decimals.erase(decimals.find_last_not_of('0') + 1);
  return std::to_string(rounded / one) + (decimals == "." ? "" : decimals);
}

std::string gradient(std::string_view name, std::string_view from, std::string_view to) {
  return joined({"<linearGradient id='", name, "' x1='0' y1='0' x2='0' y2='1'><stop offset='0' stop-color='", from,
                 "'/><stop offset='1' stop-color='", to, "'/></linearGradient>"});
}

std::string path(std::string_view data, std::string_view paint) {
  return joined({"<path d='", data, "' ", paint, "/>"});
}

std::string fill(std::string_view color) { return joined({"fill='", color, "'"}); }

std::string picture(std::string_view definitions, std::string_view body) {
  return joined(
      {"<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 96 96'><defs>", definitions, "</defs>", body, "</svg>"});
}

std::string moved(double x, double y, double scale, std::string_view body) {
  return joined(
      {"<g transform='translate(", digits(x), " ", digits(y), ") scale(", digits(scale), ")'>", body, "</g>"});
}

// All bytes of a UTF-8 character but its first begin with the bits 10.
double shrunk(double size, std::string_view number) {
  const auto length = std::ranges::count_if(number, [](char byte) { return (byte & 0xC0) != 0x80; });
  if (length <= 2) return size;
  return size * (length <= 4 ? 0.86 : 0.7);
}

std::string hex(Color color) {
  constexpr std::string_view letters = "0123456789abcdef";
  std::string text = "#";
  for (const int channel : {color.red, color.green, color.blue}) {
    text += letters[static_cast<std::size_t>(channel / 16)];
    text += letters[static_cast<std::size_t>(channel % 16)];
  }
  return text;
}

std::string starMarks(int count, std::string_view color) {
  std::string drawn;
  const auto& places = stars[static_cast<std::size_t>(count - 1)];
  for (std::size_t place = 0; place < static_cast<std::size_t>(count); ++place)
    drawn += moved(places[place].x, places[place].y, places[place].size, path(starPath, fill(color)));
  return drawn;
}

std::string flameMarks(std::int64_t count, std::string_view paint, std::string_view drop) {
  std::string drawn;
  const auto& places = flames[static_cast<std::size_t>(count - 1)];
  for (std::size_t place = 0; place < static_cast<std::size_t>(count); ++place) {
    const double scale = places[place].size / flameGrid;
    drawn += moved(places[place].x - scale * flameGrid / 2, places[place].y - scale * flameFoot, scale,
                   path(flamePath, paint) + path(flameDropPath, drop));
  }
  return drawn;
}

BadgeArt milestoneArt(std::int64_t threshold, bool isEarned, const std::string& number, const GreyColors& none) {
  const int rank = badgeRank(threshold);
  const auto& tier = milestoneTiers[static_cast<std::size_t>(badgeTier(rank))];
  const std::string definitions =
      gradient("rim", isEarned ? tier.middle : none.rimTop, isEarned ? tier.low : none.rimBottom) +
      gradient("disc", isEarned ? tier.high : none.discTop, isEarned ? tier.middle : none.discBottom);
  const std::string disc = joined({"<circle cx='48' cy='48' r='37' fill='url(#disc)' stroke='",
                                   isEarned ? tier.low : none.rimBottom, "' stroke-width='1.5'/>"});
  const std::string body =
      path(scallopPath, fill("url(#rim)")) + disc + starMarks(badgeMarkCount(rank), isEarned ? tier.ink : none.mark);
  return {picture(definitions, body), {number, shrunk(31, number), 59, isEarned ? tier.ink : none.number}};
}

BadgeArt streakArt(const StreakBadge& badge, const std::string& number, const GreyColors& none) {
  const bool isEarned = !(badge.grayscale > 0);
  const std::string definitions = gradient("flame", hex(badge.flameColorStart), hex(badge.flameColorEnd));
  const std::string edge = isEarned ? hex(badge.flameColorEnd) : none.hexagonEdge;
  const std::string surface = isEarned ? hex(badge.backgroundColor) : none.hexagon;
  const std::string paint =
      isEarned ? joined({"fill='url(#flame)' stroke='", surface, "' stroke-width='1'"}) : fill(none.mark);
  const std::string drop = fill(surface) + " fill-opacity='0.55'";
  const std::string body =
      path(hexagonEdgePath, fill(edge)) + path(hexagonPath, fill(surface)) + flameMarks(badge.flameCount, paint, drop);
  return {picture(definitions, body), {number, shrunk(22, number), 67.5, isEarned ? "#FFFFFF" : none.number}};
}

}  // namespace

BadgeArt badgeArt(BadgeShape shape, std::int64_t threshold, std::int64_t count, const std::string& number, bool dark) {
  if (shape == BadgeShape::milestone) return milestoneArt(threshold, count >= threshold, number, grey(dark));
  return streakArt(streakBadge(threshold, count, badgeGrid, false), number, grey(dark));
}

}  // namespace mivo::drawing
