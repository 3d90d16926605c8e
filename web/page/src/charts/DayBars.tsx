// SPDX-License-Identifier: MIT
import type { Action, DayBarRow, DayBarsPage, ScrollChartFeatureAction } from "mivo";
import { useEffect, useLayoutEffect, useMemo } from "preact/hooks";
import { usePage, useRows, useSource } from "../engine/Source";
import { ChartFrame } from "./ChartFrame";
import { fromLeading, isMirrored, textScale, useGeometry, useSize, widthIn } from "./Drawing";
import type { DayBarsLayout, Popup, Rectangle } from "./Geometry";
import { Scroller, useScrolling } from "./Scroller";

const kinds = {
  fasting: {
    page: "fastingChart",
    bars: "fastingBars",
    act: (action: ScrollChartFeatureAction): Action => ({ statistics: { fastingChartAction: action } }),
    see: (range: { first: number; last: number }): Action => ({ didSeeFastingBars: range }),
  },
  eating: {
    page: "eatingChart",
    bars: "eatingBars",
    act: (action: ScrollChartFeatureAction): Action => ({ statistics: { eatingChartAction: action } }),
    see: (range: { first: number; last: number }): Action => ({ didSeeEatingBars: range }),
  },
} as const;

const hairOfAColumn = 1e-6;

interface DayBarsProps {
  kind: keyof typeof kinds;
  title: string;
  height: number;
  onTable: () => void;
}

/// Day bars in the colours of a meaning: what is seen of them is asked for by place, with as much before and after.
export function DayBars({ kind, title, height, onTable }: DayBarsProps) {
  const { page, bars, act, see } = kinds[kind];
  const source = useSource();
  const chart = usePage(page);
  const geometry = useGeometry();
  const { ref, size } = useSize<HTMLDivElement>();
  const width = size?.width ?? 0;
  const { unit = "day", count = 0, widestHours = "" } = chart ?? {};
  const scale = textScale();
  const layout = useMemo(() => geometry.dayBars(width, height, unit, count, widestHours), [width, height, unit, count, widestHours, scale]);
  const { pitch, visibleColumns, plotWidth, maxScroll } = layout;
  const snapped = (scroll: number) => Math.min(maxScroll, Math.max(0, Math.round(scroll / pitch) * pitch));
  const scrolling = useScrolling((scroll) => scrolling.scrollTo(snapped(scroll), true));
  const { scroll, scrollTo } = scrolling;
  const first = pitch > 0 ? Math.min(count, Math.max(0, Math.floor(scroll / pitch + hairOfAColumn))) : 0;
  const last = pitch > 0 ? Math.min(count, Math.ceil((scroll + plotWidth) / pitch - hairOfAColumn)) : 0;

  // Whole screens of bars, so that a scroll asks for others now and then only.
  const screen = Math.floor(first / visibleColumns);
  const from = Math.max(0, (screen - 1) * visibleColumns);
  const shown = useRows(bars, from, 4 * visibleColumns);

  useLayoutEffect(() => scrollTo(maxScroll, false), [maxScroll, chart?.unit, plotWidth]);

  const firstSeen = pitch > 0 ? Math.round(scroll / pitch) : 0;
  const lastSeen = Math.min(count, firstSeen + visibleColumns);
  useEffect(() => {
    if (plotWidth > 0 && count > 0) source.send(see({ first: firstSeen, last: lastSeen }));
  }, [firstSeen, lastSeen, plotWidth > 0, chart?.unit]);
  useEffect(() => {
    if (plotWidth > 0) source.send(act({ didUpdateSize: { width: plotWidth, height } }));
  }, [plotWidth, height]);
  useEffect(() => {
    if (!shown || plotWidth === 0) return;
    const beforeTheEdge = layout.frameWidth - 2;
    const days = shown.rows
      .map((bar, place): readonly [number, number] => [bar.start, (shown.first + place + 0.5) * pitch - scroll + beforeTheEdge])
      .slice(first - shown.first, last - shown.first);
    source.send(act({ didUpdateVisibleDays: days }));
  }, [shown, first, last, pitch, chart?.selected === null ? 0 : scroll]); // the popup follows the selected bar
  useEffect(() => {
    if (scrolling.isUnderway()) source.send(act({ didUpdateMidX: scroll + plotWidth / 2 }));
  }, [scroll]);
  const midX = chart?.midX ?? null;
  useEffect(() => {
    if (midX !== null && !scrolling.isUnderway()) scrollTo(midX - plotWidth / 2, false);
  }, [midX]);

  const select = async (place: number) => {
    const middle = (place + 0.5) * pitch - scroll;
    if (middle < 0) scrollTo(snapped(scroll + middle - pitch / 2), false);
    if (middle > plotWidth) scrollTo(snapped(scroll + middle + pitch / 2 - plotWidth), false);
    const [bar] = await source.engine.rows(bars, place, 1);
    if (bar) source.send(act({ didTapBar: bar.id }));
  };
  const selected = chart?.selected ?? null;
  const move = (steps: number) => {
    const next = selected === null ? count - 1 : Math.min(count - 1, Math.max(0, selected + steps));
    if (next !== selected && next >= 0) void select(next);
  };
  const clear = () => {
    if (selected !== null) void select(selected);
  };
  // Drawn once for what is near: a scroll moves it, and draws nothing anew.
  const drawn = useMemo(() => chart && shown && <Bars key={unit} kind={kind} chart={chart} layout={layout} first={shown.first} rows={shown.rows} />, [chart, shown, layout]);
  const lines = useMemo(() => chart && <HourLines chart={chart} layout={layout} width={width} />, [chart, layout]);
  if (!chart) return <div class="chart" ref={ref} style={{ blockSize: `${height}px` }} />;
  const inWindow = selected !== null && shown ? shown.rows[selected - shown.first] : undefined;
  const popup =
    chart.popup && selected !== null && inWindow
      ? geometry.popup(layout, chart.popup, (selected + 0.5) * pitch - scroll, inWindow.value)
      : null;
  return (
    <ChartFrame
      frame={ref}
      selection={chart.spokenSelection}
      height={height}
      onMove={move}
      onEnd={(latest) => void select(latest ? count - 1 : 0)}
      onClear={clear}
      onToggle={() => (selected === null ? move(0) : clear())}
      onTable={onTable}
    >
      {width > 0 && (
        <>
          {lines}
          <Scroller
            name={`${title}, ${chart.visibleDates}`}
            scrolling={scrolling}
            width={plotWidth}
            contentWidth={count * pitch}
            onPoint={(x) => {
              const place = Math.floor((x + scroll) / pitch);
              if (place < count) void select(place);
            }}
          >
            {drawn}
          </Scroller>
          {popup && selected !== null && selected < last && selected >= first && <PopupShape popup={popup} width={width} />}
        </>
      )}
    </ChartFrame>
  );
}

function HourLines({ chart, layout, width }: { chart: DayBarsPage; layout: DayBarsLayout; width: number }) {
  const { plotWidth, baseline, barArea, height } = layout;
  const edges = { x1: fromLeading(0, width), x2: fromLeading(plotWidth, width) };
  return (
    <svg class="back" width={width} height={height} aria-hidden="true">
      {chart.hours.map(({ value, text }) => {
        const y = baseline - ((value * 3600) / chart.maxTime) * barArea;
        return (
          <>
            <line {...edges} y1={y} y2={y} />
            <text class="axis" direction="ltr" x={fromLeading(width, width)} y={y} text-anchor={isMirrored() ? "start" : "end"} dominant-baseline="central">
              {text}
            </text>
          </>
        );
      })}
      <line class="strong" {...edges} y1={baseline} y2={baseline} />
    </svg>
  );
}

function barPath({ x, y, width, height }: Rectangle, { top, bottom }: { top: number; bottom: number }): string {
  const [right, foot] = [x + width, y + height];
  return (
    `M${x} ${foot - bottom}V${y + top}Q${x} ${y} ${x + top} ${y}H${right - top}Q${right} ${y} ${right} ${y + top}` +
    `V${foot - bottom}Q${right} ${foot} ${right - bottom} ${foot}H${x + bottom}Q${x} ${foot} ${x} ${foot - bottom}Z`
  );
}

interface BarsProps {
  kind: string;
  chart: DayBarsPage;
  layout: DayBarsLayout;
  first: number;
  rows: DayBarRow[];
}

function Bars({ kind, chart, layout, first, rows }: BarsProps) {
  const geometry = useGeometry();
  const { pitch, baseline, height } = layout;
  const width = rows.length * pitch;
  const strong = widthIn("axisStrong");
  const widest = Math.max(...rows.map((bar) => strong(bar.label)));
  const labelled = new Set(geometry.labelled(layout, first, first + rows.length, widest));
  const gradient = `bars-of-${kind}`;
  return (
    <svg class="bars" data-accent={kind} width={width} height={height} style={{ insetInlineStart: `${first * pitch}px` }} aria-hidden="true">
      <defs>
        <linearGradient id={gradient} gradientUnits="userSpaceOnUse" x1="0" x2="0" y1={baseline - layout.barArea} y2={baseline}>
          <stop class="bar-top" offset="0" />
          <stop class="bar-foot" offset="1" />
        </linearGradient>
      </defs>
      <g class="growing" style={{ transformOrigin: `0 ${baseline}px` }}>
        {rows.map((bar, place) => {
          const shape = geometry.bar(layout, first + place, bar.value);
          const start = fromLeading(shape.x - first * pitch, width);
          const x = isMirrored() ? start - shape.width : start;
          const isDim = !(bar.value > 0) || (chart.selected !== null && chart.selected !== first + place);
          return (
            <path
              key={bar.id}
              class={isDim ? "dim" : undefined}
              fill={isDim ? undefined : `url(#${gradient})`}
              d={barPath({ ...shape, x }, geometry.barCorners(shape.width, shape.height))}
            />
          );
        })}
      </g>
      {rows.map((bar, index) => {
        const place = first + index;
        if (!labelled.has(place)) return null;
        const isPresent = place === chart.count - 1;
        const x = fromLeading((index + 0.5) * pitch, width);
        return (
          <g key={bar.id}>
            <text class={isPresent || place === chart.selected ? "axis strong" : "axis"} x={x} y={baseline + 8} text-anchor="middle" dominant-baseline="hanging">
              {bar.label}
            </text>
            {isPresent && <circle class="present" cx={x} cy={baseline + 30} r="2" />}
          </g>
        );
      })}
    </svg>
  );
}

function PopupShape({ popup, width }: { popup: Popup; width: number }) {
  const { body, pointerFoot, pointerX, pointsDown, lines, isSmall } = popup;
  const left = isMirrored() ? width - body.x - body.width : body.x;
  const [foot, tip] = [fromLeading(pointerFoot, width), fromLeading(pointerX, width)];
  const base = pointsDown ? body.y + body.height : body.y;
  return (
    <svg class="popup" width={width} height="100%" aria-hidden="true">
      <rect x={left} y={body.y} width={body.width} height={body.height} rx="10" />
      <path d={`M${foot - 7} ${base}L${tip} ${pointsDown ? base + 6 : base - 6}L${foot + 7} ${base}Z`} />
      {lines.map(({ text, y }) => (
        <text class={isSmall ? "value small" : "value"} direction="ltr" x={left + body.width / 2} y={y} text-anchor="middle" dominant-baseline="central">
          {text}
        </text>
      ))}
    </svg>
  );
}
