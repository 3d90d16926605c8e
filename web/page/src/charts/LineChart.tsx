// SPDX-License-Identifier: MIT
import type { Action, LineChartActionAction, LineChartPage, LinePoint, LineRow } from "mivo";
import { useEffect, useLayoutEffect, useMemo, useRef, useState } from "preact/hooks";
import { usePage, useRows, useSource } from "../engine/Source";
import { ChartFrame } from "./ChartFrame";
import { fromLeading, isMirrored, textScale, useGeometry, useSize } from "./Drawing";
import type { LineLayout } from "./Geometry";
import { Scroller, useScrolling } from "./Scroller";

const kinds = {
  weight: {
    page: "weightChart",
    points: "weightPoints",
    act: (action: LineChartActionAction): Action => ({ weightChart: action }),
  },
  weightFasting: {
    page: "weightFastingChart",
    points: "weightFastingPoints",
    act: (action: LineChartActionAction): Action => ({ weightFastingChart: action }),
  },
} as const;

const accents = ["weight", "fasting"] as const;
const markRadius = { single: 4, pair: 3.8, selected: 5.5, annotation: 3 };
const axisMoves = 180;

/// Places of dates in the content that scrolls, and of values.
interface Plot {
  x: (date: number) => number;
  date: (x: number) => number;
  y: (value: number, line: number) => number;
}

interface LineChartProps {
  kind: keyof typeof kinds;
  title: string;
  height: number;
  onTable: () => void;
}

/// Weights, or averaged weight and fasting hours, as lines that scroll and tell of the point that is touched.
export function LineChart({ kind, title, height, onTable }: LineChartProps) {
  const { page, points, act } = kinds[kind];
  const source = useSource();
  const chart = usePage(page);
  const geometry = useGeometry();
  const { ref, size } = useSize<HTMLDivElement>();
  const width = size?.width ?? 0;
  const count = chart?.lines.reduce((sum, line) => sum + line.count, 0) ?? 0;
  const rows = useRows(points, 0, count);
  const scrolling = useScrolling(() => {});
  const [low, high] = useMovingAxis(chart?.low ?? 0, chart?.high ?? 1);
  const isPair = chart?.lines.length === 2;
  const scale = textScale();
  const layout = useMemo(() => (chart ? geometry.lineChart(width, height, chart) : undefined), [width, height, chart, scale]);
  const series = useMemo(() => splitInLines(chart?.lines ?? [], rows?.rows ?? []), [chart?.lines.length, rows]);
  const dates = useMemo(() => [...new Set(series.flat().map((point) => point.date))].sort((one, other) => one - other), [series]);
  const contentWidth = layout?.contentWidth ?? 0;
  const plotWidth = layout?.plotWidth ?? 0;
  const { scroll, scrollTo } = scrolling;

  useLayoutEffect(() => scrollTo(contentWidth - plotWidth, false), [contentWidth, plotWidth]);
  const span = chart ? chart.visible.end - chart.visible.start : 0;
  const secondsPerPoint = plotWidth > 0 ? span / plotWidth : 0;
  const leading = chart ? chart.domain.end - (contentWidth - scroll) * secondsPerPoint : 0;
  useEffect(() => {
    if (chart?.scrolls && scrolling.isUnderway()) source.send(act({ didScroll: leading }));
  }, [scroll]);

  if (!chart || !layout) return <div class="chart" ref={ref} style={{ blockSize: `${height}px` }} />;
  const plot: Plot = {
    x: (date) => contentWidth - (chart.domain.end - date) / secondsPerPoint,
    date: (x) => chart.domain.end - (contentWidth - x) * secondsPerPoint,
    y: (value, line) => {
      const share = high > low ? (value / (isPair ? (chart.lines[line]?.scale ?? 1) : 1) - low) / (high - low) : 0.5;
      return layout.bottom - share * (layout.bottom - layout.top);
    },
  };
  const touch = (date: number | null) => source.send(act({ didTouch: date }));
  const choose = (date: number | undefined) => {
    if (date === undefined) return;
    const x = plot.x(date) - scroll;
    if (x < 0 || x > plotWidth) {
      scrollTo(Math.max(0, scroll + x - plotWidth / 2), false);
      source.send(act({ didScroll: date - span / 2 }));
    }
    touch(date);
  };
  const selectedDate = Math.max(...chart.selection.map((point) => point?.date ?? -Infinity));
  const move = (steps: number) =>
    choose(
      selectedDate === -Infinity
        ? dates.at(-1)
        : steps > 0
          ? dates.find((date) => date > selectedDate)
          : dates.findLast((date) => date < selectedDate),
    );
  return (
    <ChartFrame
      frame={ref}
      selection={chart.spokenSelection || chart.note}
      height={height}
      onMove={move}
      onEnd={(latest) => choose(dates.at(latest ? -1 : 0))}
      onClear={() => touch(null)}
      onToggle={() => (selectedDate === -Infinity ? move(0) : touch(null))}
      onTable={onTable}
    >
      {width > 0 && (
        <>
          <ValueLines chart={chart} layout={layout} plot={plot} width={width} />
          <Scroller
            name={`${title}, ${chart.visibleDates}`}
            scrolling={scrolling}
            width={plotWidth}
            contentWidth={contentWidth}
            onPoint={(x) => touch(leading + Math.min(plotWidth, Math.max(0, x)) * secondsPerPoint)}
            selectsWhileHeld
          >
            <LineContent chart={chart} layout={layout} plot={plot} series={series} scroll={scroll} />
          </Scroller>
          <Selection chart={chart} layout={layout} plot={plot} scroll={scroll} width={width} />
          {chart.note !== "" && <p class="chart-note text-body secondary">{chart.note}</p>}
        </>
      )}
    </ChartFrame>
  );
}

function splitInLines(lines: readonly LineRow[], points: readonly LinePoint[]): LinePoint[][] {
  let from = 0;
  return lines.map((line) => points.slice(from, (from += line.count)));
}

// A new axis after scrolling is gone to, not jumped to.
function useMovingAxis(low: number, high: number): [number, number] {
  const [shown, setShown] = useState<[number, number]>([low, high]);
  const from = useRef<[number, number]>([low, high]);
  const isFirst = useRef(true);
  useEffect(() => {
    const isStill = isFirst.current || getComputedStyle(document.documentElement).getPropertyValue("--segment-move") === "0ms";
    isFirst.current = false;
    const begin = performance.now();
    const before = from.current;
    let frame = 0;
    const step = (now: number) => {
      const way = isStill ? 1 : Math.min(1, (now - begin) / axisMoves);
      const eased = 1 - (1 - way) ** 3;
      from.current = [before[0] + (low - before[0]) * eased, before[1] + (high - before[1]) * eased];
      setShown(from.current);
      if (way < 1) frame = requestAnimationFrame(step);
    };
    step(begin);
    return () => cancelAnimationFrame(frame);
  }, [low, high]);
  return shown;
}

interface PartProps {
  chart: LineChartPage;
  layout: LineLayout;
  plot: Plot;
}

function ValueLines({ chart, layout, plot, width }: PartProps & { width: number }) {
  const geometry = useGeometry();
  const isPair = chart.lines.length === 2;
  const edges = { x1: fromLeading(0, width), x2: fromLeading(layout.plotWidth, width) };
  const even = [0, 1, 2, 3].map((line) => layout.top + (line * (layout.bottom - layout.top)) / 3);
  const lines = isPair || chart.axis.length === 0 ? even : chart.axis.map(({ value }) => plot.y(value, 0));
  const latest = isPair
    ? chart.lines.flatMap((line, place) => (line.latest ? [{ text: line.latest.text, y: plot.y(line.latest.value, place), accent: accents[place] }] : []))
    : chart.axis.map(({ value, text }) => ({ text, y: plot.y(value, 0), accent: undefined }));
  const places = isPair ? geometry.gutterPlaces(latest.map(({ y }) => y)) : latest.map(({ y }) => y);
  return (
    <svg class="back" width={width} height="100%" aria-hidden="true">
      {lines.map((y) => (
        <line {...edges} y1={y} y2={y} />
      ))}
      <line class="strong" {...edges} y1={layout.baseline} y2={layout.baseline} />
      {latest.map(({ text, accent }, place) => (
        <text
          class={accent ? "axis of-line" : "axis"}
          data-accent={accent}
          direction="ltr"
          x={fromLeading(width, width)}
          y={places[place]}
          text-anchor={isMirrored() ? "start" : "end"}
          dominant-baseline="central"
        >
          {text}
        </text>
      ))}
    </svg>
  );
}

function LineContent({ chart, layout, plot, series, scroll }: PartProps & { series: LinePoint[][]; scroll: number }) {
  const geometry = useGeometry();
  const { plotWidth, contentWidth, baseline } = layout;
  // One screen before what is seen, and one after it.
  const start = Math.max(0, Math.floor(Math.min(scroll, contentWidth - plotWidth) / plotWidth - 1) * plotWidth);
  const width = Math.min(3 * plotWidth, contentWidth - start);
  const x = (date: number) => fromLeading(plot.x(date) - start, width);
  const labels = geometry.labelsThatFit(chart.labels, plot.date(scroll), plot.date(scroll + plotWidth), plotWidth);
  const label = (at: number) => fromLeading(scroll - start + at, width);
  const isPair = series.length === 2;
  return (
    <svg class="lines" width={width} height="100%" style={{ insetInlineStart: `${start}px` }} aria-hidden="true">
      {labels.map(({ label: place, x: at, isCentred }) => {
        const { text, isPresent, date } = chart.labels[place]!;
        return (
          <g key={date}>
            <text class={isPresent ? "axis strong" : "axis"} x={label(at)} y={baseline + 8} text-anchor={isCentred ? "middle" : "start"} dominant-baseline="hanging">
              {text}
            </text>
            {isPresent && <circle class="present" cx={label(at)} cy={baseline + 30} r="2" />}
          </g>
        );
      })}
      {series.map((points, line) => {
        const begin = points.findIndex((point) => plot.x(point.date) >= start - plotWidth);
        const end = points.findLastIndex((point) => plot.x(point.date) <= start + width + plotWidth);
        const drawn = begin < 0 ? [] : points.slice(Math.max(0, begin - 1), end + 2);
        const inside = drawn.filter((point) => plot.x(point.date) >= scroll && plot.x(point.date) <= scroll + plotWidth);
        const path = drawn.map((point, place) => `${place === 0 ? "M" : "L"}${x(point.date).toFixed(1)} ${plot.y(point.value, line).toFixed(1)}`).join("");
        const [from, to] = [drawn[0], drawn.at(-1)];
        return (
          <g class="line" data-accent={accents[line]} key={line}>
            {!isPair && from && to && (
              <>
                <linearGradient id="under-weight" gradientUnits="userSpaceOnUse" x1="0" x2="0" y1={layout.top} y2={layout.bottom}>
                  <stop class="area-top" offset="0" />
                  <stop class="area-foot" offset="1" />
                </linearGradient>
                <path class="area" fill="url(#under-weight)" d={`${path}L${x(to.date)} ${layout.bottom}L${x(from.date)} ${layout.bottom}Z`} />
              </>
            )}
            <path class="stroke" d={path} />
            {geometry.hasMarks(plotWidth, inside.length) &&
              drawn.map((point) => <Mark key={point.date} x={x(point.date)} y={plot.y(point.value, line)} line={line} radius={isPair ? markRadius.pair : markRadius.single} />)}
          </g>
        );
      })}
    </svg>
  );
}

/// A disc, or for the second line a diamond.
export function Mark({ x, y, line, radius, class: name = "mark" }: { x: number; y: number; line: number; radius: number; class?: string }) {
  if (line === 0) return <circle class={name} cx={x} cy={y} r={radius} />;
  const reach = radius + 1.2;
  return <path class={name} d={`M${x} ${y - reach}L${x + reach} ${y}L${x} ${y + reach}L${x - reach} ${y}Z`} />;
}

function Selection({ chart, layout, plot, scroll, width }: PartProps & { scroll: number; width: number }) {
  const geometry = useGeometry();
  const isPair = chart.lines.length === 2;
  const firstLine = chart.selection.findIndex((point) => point !== null);
  const first = chart.selection[firstLine];
  if (!first) return null;
  const ruleX = plot.x(first.date) - scroll;
  if (ruleX < -1 || ruleX > layout.plotWidth + 1) return null;
  const at = { x: ruleX, y: plot.y(first.value, firstLine) };
  const box = geometry.annotation(layout, width, isPair, at, chart.selectedDate, chart.selectedValues);
  const left = isMirrored() ? width - box.x - box.width : box.x;
  const top = isPair ? box.height : layout.top;
  return (
    <svg class="selection" width={width} height="100%" aria-hidden="true">
      <rect class="rule" x={fromLeading(ruleX, width) - 0.5} y={top} width="1" height={layout.baseline - top} />
      {chart.selection.map(
        (point, line) =>
          point && (
            <g data-accent={accents[line]}>
              <Mark x={fromLeading(plot.x(point.date) - scroll, width)} y={plot.y(point.value, line)} line={line} radius={markRadius.selected} class="chosen" />
            </g>
          ),
      )}
      <rect class="box" x={left} y={box.y} width={box.width} height={box.height} rx="10" />
      <text class="caption" x={fromLeading(box.x + 12, width)} y={box.y + 14} text-anchor="start" dominant-baseline="central">
        {chart.selectedDate}
      </text>
      {box.values.map(({ line, mark, text }) => (
        <g class={`of-${accents[line]}`}>
          <Mark x={fromLeading(mark, width)} y={box.y + 32} line={line} radius={markRadius.annotation} />
          <text class="value" x={fromLeading(text, width)} y={box.y + 32} text-anchor="start" dominant-baseline="central">
            {chart.selectedValues[line]}
          </text>
        </g>
      ))}
    </svg>
  );
}
