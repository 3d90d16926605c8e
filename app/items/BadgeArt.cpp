// SPDX-License-Identifier: MIT
#include "BadgeArt.h"

#include <array>

#include "BadgePaths.h"

namespace mivo::app {
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

QString gradient(const char* name, const QString& from, const QString& to) {
  return QStringLiteral(
             "<linearGradient id='%1' x1='0' y1='0' x2='0' y2='1'><stop offset='0' stop-color='%2'/>"
             "<stop offset='1' stop-color='%3'/></linearGradient>")
      .arg(QLatin1String{name}, from, to);
}

QString path(const char* data, const QString& paint) {
  return QStringLiteral("<path d='%1' %2/>").arg(QLatin1String{data}, paint);
}

QString picture(const QString& definitions, const QString& body) {
  return QStringLiteral("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 96 96'><defs>%1</defs>%2</svg>")
      .arg(definitions, body);
}

double shrunk(double size, const QString& number) {
  if (number.size() <= 2) return size;
  return size * (number.size() <= 4 ? 0.86 : 0.7);
}

QString hex(Color color) {
  return QStringLiteral("#%1").arg((color.red << 16) | (color.green << 8) | color.blue, 6, 16, QLatin1Char{'0'});
}

QString starMarks(std::int64_t count, const QString& color) {
  QString drawn;
  const auto& places = stars[static_cast<std::size_t>(count - 1)];
  for (std::size_t place = 0; place < static_cast<std::size_t>(count); ++place)
    drawn += QStringLiteral("<g transform='translate(%1 %2) scale(%3)'>%4</g>")
                 .arg(places[place].x)
                 .arg(places[place].y)
                 .arg(places[place].size)
                 .arg(path(starPath, QStringLiteral("fill='%1'").arg(color)));
  return drawn;
}

QString flameMarks(std::int64_t count, const QString& paint, const QString& drop) {
  QString drawn;
  const auto& places = flames[static_cast<std::size_t>(count - 1)];
  for (std::size_t place = 0; place < static_cast<std::size_t>(count); ++place) {
    const double scale = places[place].size / flameGrid;
    drawn += QStringLiteral("<g transform='translate(%1 %2) scale(%3)'>%4%5</g>")
                 .arg(places[place].x - scale * flameGrid / 2)
                 .arg(places[place].y - scale * flameFoot)
                 .arg(scale)
                 .arg(path(flamePath, paint), path(flameDropPath, drop));
  }
  return drawn;
}

}  // namespace

BadgeArt badgeArt(const MilestoneBadge& badge, const QString& number, bool dark) {
  const auto& tier = milestoneTiers[static_cast<std::size_t>(badgeTier(badgeRank(badge.fastCount)))];
  const bool isGrey = badge.grayscale > 0;
  const GreyColors& none = grey(dark);
  const QString definitions = gradient("rim", QLatin1String{isGrey ? none.rimTop : tier.middle},
                                       QLatin1String{isGrey ? none.rimBottom : tier.low}) +
                              gradient("disc", QLatin1String{isGrey ? none.discTop : tier.high},
                                       QLatin1String{isGrey ? none.discBottom : tier.middle});
  const QString ring = QLatin1String{isGrey ? none.rimBottom : tier.low};
  const QString body =
      path(scallopPath, QStringLiteral("fill='url(#rim)'")) +
      QStringLiteral("<circle cx='48' cy='48' r='37' fill='url(#disc)' stroke='%1' stroke-width='1.5'/>").arg(ring) +
      starMarks(badge.starCount, QLatin1String{isGrey ? none.mark : tier.ink});
  return {picture(definitions, body).toUtf8(),
          {number, shrunk(31, number), 59, QLatin1String{isGrey ? none.number : tier.ink}}};
}

BadgeArt badgeArt(const StreakBadge& badge, const QString& number, bool dark) {
  const bool isGrey = badge.grayscale > 0;
  const GreyColors& none = grey(dark);
  const QString definitions = gradient("flame", hex(badge.flameColorStart), hex(badge.flameColorEnd));
  const QString edge = isGrey ? QString{QLatin1String{none.hexagonEdge}} : hex(badge.flameColorEnd);
  const QString surface = isGrey ? QString{QLatin1String{none.hexagon}} : hex(badge.backgroundColor);
  const QString paint = isGrey ? QStringLiteral("fill='%1'").arg(QLatin1String{none.mark})
                               : QStringLiteral("fill='url(#flame)' stroke='%1' stroke-width='1'").arg(surface);
  const QString drop = QStringLiteral("fill='%1' fill-opacity='0.55'").arg(surface);
  const QString body = path(hexagonEdgePath, QStringLiteral("fill='%1'").arg(edge)) +
                       path(hexagonPath, QStringLiteral("fill='%1'").arg(surface)) +
                       flameMarks(badge.flameCount, paint, drop);
  return {picture(definitions, body).toUtf8(),
          {number, shrunk(22, number), 67.5, isGrey ? QLatin1String{none.number} : QLatin1String{"#FFFFFF"}}};
}

}  // namespace mivo::app
