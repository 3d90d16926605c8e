// SPDX-License-Identifier: MIT
// Where everything of a picture stands, in points. Everything runs from the leading edge: who paints mirrors. The rules
// are those of drawing; this is how the page asks for them.

import type { DayBarsPage, LineChartPage, TimeAxisLabel } from "mivo";

export interface Point {
  x: number;
  y: number;
}

export interface Rectangle extends Point {
  width: number;
  height: number;
}

/// How wide a text is, in points.
export type TextWidth = (text: string) => number;

export interface DayBarsLayout {
  width: number;
  height: number;
  unit: DayBarsPage["unit"];
  count: number;
  plotWidth: number;
  pitch: number;
  maxScroll: number;
  baseline: number;
  barArea: number;
  frameWidth: number;
  visibleColumns: number;
  gutter: number;
}

export interface Popup {
  body: Rectangle;
  pointerX: number;
  pointerFoot: number;
  pointsDown: boolean;
  lines: { text: string; y: number }[];
  isSmall: boolean;
}

export interface LineLayout {
  plotWidth: number;
  contentWidth: number;
  baseline: number;
  top: number;
  bottom: number;
  areaTop: number;
  gutter: number;
}

export interface Annotation extends Rectangle {
  values: { line: number; mark: number; text: number }[];
}

export interface RingArc {
  zone: number | null;
  isReached: boolean;
  from: number;
  turn: number;
}

export interface StripPart {
  zone: number | null;
  x: number;
  width: number;
}

export interface BadgeArt {
  svg: string;
  numberSize: number;
  numberMiddle: number;
  numberColor: string;
}

export interface Geometry {
  dayBars(width: number, height: number, unit: DayBarsPage["unit"], count: number, widestHours: string): DayBarsLayout;
  bar(layout: DayBarsLayout, place: number, value: number): Rectangle;
  barCorners(width: number, height: number): { top: number; bottom: number };
  labelled(layout: DayBarsLayout, first: number, last: number, widestLabel: number): number[];
  popup(layout: DayBarsLayout, state: NonNullable<DayBarsPage["popup"]>, barMiddle: number, value: number): Popup;

  lineChart(width: number, height: number, chart: LineChartPage): LineLayout;
  labelsThatFit(labels: readonly TimeAxisLabel[], from: number, to: number, width: number): { label: number; x: number; isCentred: boolean }[];
  gutterPlaces(ys: number[]): number[];
  hasMarks(plotWidth: number, pointsInPlot: number): boolean;
  annotation(layout: LineLayout, innerWidth: number, isPair: boolean, at: Point, date: string, values: readonly string[]): Annotation;

  ring(seconds: number, span: number, isEating: boolean): { arcs: RingArc[]; head: Point };
  ringMark(at: number, span: number, textWidth: number, width: number, height: number): Point;
  strip(seconds: number, span: number, width: number): StripPart[];
  badge(shape: "milestone" | "streak", threshold: number, count: number, number: string, dark: boolean): BadgeArt;
}
