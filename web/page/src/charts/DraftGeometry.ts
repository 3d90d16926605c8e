// SPDX-License-Identifier: MIT
// Stands in for the compiled drawing module, function by function, until the page loads that.
import { widthIn } from "./Drawing";
import type { Annotation, Geometry, RingArc, StripPart } from "./Geometry";

const hour = 3600;
const zoneBounds = [0, 4 * hour, 16 * hour, 24 * hour, 72 * hour];
const clamp = (value: number, least: number, most: number) => Math.min(Math.max(value, least), Math.max(least, most));
const onRing = (at: number, span: number, distance: number) => {
  const angle = (at / span) * 2 * Math.PI;
  return { x: 150 + distance * Math.sin(angle), y: 150 - distance * Math.cos(angle) };
};

export const draftGeometry: Geometry = {
  dayBars(width, height, unit, count, widestHours) {
    const gutter = Math.max(32, Math.ceil(widthIn("axis")(widestHours) + 4));
    const plotWidth = Math.max(0, width - gutter);
    const perWidth = { day: 7, week: 5, month: 8 }[unit];
    const frameWidth = Math.min(50, Math.max(35, plotWidth / perWidth - 1));
    const visibleColumns = Math.max(1, Math.floor((plotWidth + 1) / (frameWidth + 1)));
    const pitch = plotWidth / visibleColumns;
    return {
      width, height, unit, count, plotWidth, pitch, frameWidth, visibleColumns, gutter,
      maxScroll: Math.max(0, count * pitch - plotWidth),
      baseline: height - 36,
      barArea: height - 50,
    };
  },
  bar(layout, place, value) {
    const width = layout.frameWidth - 14;
    const height = value > 0 ? Math.max(3, value * layout.barArea) : 3;
    return { x: (place + 0.5) * layout.pitch - width / 2, y: layout.baseline - height, width, height };
  },
  barCorners(width, height) {
    const bottom = Math.min(3, height / 2);
    return { top: Math.min(8, width / 2, height - bottom), bottom };
  },
  labelled(layout, first, last, widestLabel) {
    const stride = Math.max(1, Math.ceil((widestLabel + 4) / layout.pitch));
    const places = Array.from({ length: Math.max(0, last - first) }, (_, index) => first + index);
    return places.filter((place) => (layout.count - 1 - place) % stride === 0);
  },
  popup(layout, { popupLabel: label }, barMiddle, value) {
    const [usual, small] = [widthIn("value"), widthIn("valueSmall")];
    const width = 2 * layout.frameWidth;
    const blank = label.lastIndexOf(" ");
    const isSmall = usual(label) > width - 12;
    const breaks = isSmall && small(label) > width - 12 && blank > 0;
    const lines = breaks ? [label.slice(0, blank), label.slice(blank + 1)] : [label];
    const offset = -14 - value * layout.barArea - 40;
    const isInside = offset < -14 - layout.barArea;
    const height = 30 + (lines.length - 1) * 14;
    const x = clamp(barMiddle - width / 2, -8, layout.plotWidth + layout.gutter + 8 - width);
    const y = layout.baseline + 14 + (isInside ? offset + 60 + 6 : offset - (lines.length - 1) * 14);
    const first = y + height / 2 - ((lines.length - 1) * 14) / 2;
    return {
      body: { x, y, width, height },
      pointerX: barMiddle,
      pointerFoot: clamp(barMiddle, x + 7, x + width - 7),
      pointsDown: !isInside,
      isSmall,
      lines: lines.map((text, line) => ({ text, y: first + line * 14 })),
    };
  },
  lineChart(width, height, chart) {
    const isPair = chart.lines.length === 2;
    const widestText = Math.max(0, ...chart.lines.map((line) => widthIn(isPair ? "axisStrong" : "axis")(line.widestText)));
    const gutter = Math.max(32, Math.ceil(widestText + (isPair ? 8 : 4)));
    const plotWidth = Math.max(0, width - gutter);
    const span = chart.visible.end - chart.visible.start;
    const baseline = height - 32;
    const top = isPair ? 64 : 8;
    return {
      plotWidth, baseline, gutter, top,
      contentWidth: chart.scrolls ? Math.max(plotWidth, ((chart.domain.end - chart.domain.start) / span) * plotWidth) : plotWidth,
      bottom: isPair ? baseline - 18 : baseline,
      areaTop: top - 8,
    };
  },
  labelsThatFit(labels, from, to, width) {
    const place = (date: number) => ((date - from) / (to - from)) * width;
    let free = -Infinity;
    return labels.flatMap(({ date, until, text }, label) => {
      const isCentred = until > date;
      const x = isCentred ? (place(date) + place(until)) / 2 : place(date);
      const advance = widthIn("axisStrong")(text);
      const begin = isCentred ? x - advance / 2 : x;
      if (begin < Math.max(free, -0.5) || begin + advance > width + 0.5) return [];
      free = begin + advance + 4;
      return [{ label, x, isCentred }];
    });
  },
  gutterPlaces(ys) {
    const [first = 0, second = 0] = ys;
    if (ys.length < 2 || Math.abs(first - second) >= 14) return ys;
    const middle = (first + second) / 2;
    return first <= second ? [middle - 7, middle + 7] : [middle + 7, middle - 7];
  },
  hasMarks: (plotWidth, pointsInPlot) => plotWidth / Math.max(1, pointsInPlot) >= 12,
  annotation(layout, innerWidth, isPair, at, date, values): Annotation {
    const [caption, value] = [widthIn("caption"), widthIn("value")];
    const shown = values.flatMap((text, line) => (text === "" ? [] : [{ text, line }]));
    const contents = shown.reduce((sum, { text }, place) => sum + (place > 0 ? 10 : 0) + 16 + value(text), 0);
    const needed = Math.max(contents, caption(date)) + 24;
    const width = isPair ? Math.min(Math.max(160, needed), innerWidth) : Math.min(needed, layout.plotWidth);
    const centred = (middle: number, size: number, least: number, most: number) => clamp(middle - size / 2, least, most - size);
    let x = centred(at.x, width, 0, layout.plotWidth);
    let y = 0;
    if (!isPair) {
      const beside = at.x < layout.plotWidth / 2 ? at.x + 11.5 : at.x - 11.5 - width;
      if (beside >= 0 && beside + width <= layout.plotWidth) [x, y] = [beside, centred(at.y, 46, layout.top, layout.bottom)];
      else y = at.y - 57.5 >= layout.top ? at.y - 57.5 : at.y + 11.5;
    }
    let from = x + 12;
    return {
      x, y, width, height: 46,
      values: shown.map(({ text, line }) => {
        const placed = { line, mark: from + 5, text: from + 16 };
        from += 26 + value(text);
        return placed;
      }),
    };
  },
  ring(seconds, span, isEating) {
    const bounds = zoneBounds.filter((bound) => bound < span);
    const zones = isEating
      ? [{ zone: null, from: 0, to: span }]
      : bounds.map((from, zone) => ({ zone, from, to: Math.min(zoneBounds[zone + 1] ?? span, span) }));
    const gap = zones.length > 1 ? (2.2 / (2 * Math.PI * 118)) * span : 0;
    const present = clamp(seconds, 0, span);
    const arcs: RingArc[] = [];
    const add = (zone: number | null, isReached: boolean, from: number, to: number) => {
      if (from < to) arcs.push({ zone, isReached, from: (from * 360) / span, turn: ((to - from) * 360) / span });
    };
    for (const { zone, from, to } of zones) {
      add(zone, false, Math.max(from + gap, present), to - gap);
      add(zone, true, from + gap, Math.min(to - gap, present));
    }
    return { arcs, head: onRing(present, span, 118) };
  },
  ringMark(at, span, textWidth, width, height) {
    const place = onRing(at, span, 140);
    const aside = (((place.x - 150) / 140) * Math.max(0, textWidth - 20)) / 2;
    const room = ((width * 300) / height - 300) / 2;
    return { x: clamp(place.x + aside - textWidth / 2, -room, 300 + room - textWidth), y: place.y };
  },
  strip(seconds, span, width) {
    const parts: StripPart[] = [];
    if (!(span > 0)) return parts;
    const perSecond = width / span;
    zoneBounds.forEach((from, zone) => {
      if (from >= seconds) return;
      const until = Math.min(seconds, zoneBounds[zone + 1] ?? seconds);
      const x = from * perSecond + (zone > 0 ? 1 : 0);
      const end = Math.min(width, until * perSecond - (until < seconds ? 1 : 0));
      parts.push({ zone, x, width: Math.max(end - x, 2) });
    });
    const rest = Math.min(seconds, span) * perSecond + 2;
    if (rest < width) parts.push({ zone: null, x: rest, width: width - rest });
    return parts;
  },
  badge(shape, threshold, count, _number, dark) {
    const color = count >= threshold ? (shape === "streak" ? "#3c1f2c" : "#cdd3de") : dark ? "#34343d" : "#dad7d0";
    return {
      svg: `<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 96 96'><circle cx='48' cy='48' r='46' fill='${color}'/></svg>`,
      numberSize: shape === "streak" ? 22 : 31,
      numberMiddle: shape === "streak" ? 67.5 : 59,
      numberColor: count >= threshold ? (shape === "streak" ? "#ffffff" : "#262c38") : "#66646e",
    };
  },
};
