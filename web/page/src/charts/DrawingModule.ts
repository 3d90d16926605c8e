// SPDX-License-Identifier: MIT
// The geometry as the compiled module of web/drawing gives it. What it answers lasts until it is asked again.
import { type ChartFont, widthIn } from "./Drawing";
import type { Geometry } from "./Geometry";

type Exported = (...given: number[]) => number;

const fonts: ChartFont[] = ["axis", "axisStrong", "caption", "value", "valueSmall"];
const units = { day: 0, week: 1, month: 2 };
const roomAtTheSides = 16;

/// The module's memory, and how texts and numbers go there and back.
class Exchange {
  private readonly encoder = new TextEncoder();
  private readonly decoder = new TextDecoder();
  private exports!: WebAssembly.Exports & { memory: WebAssembly.Memory };

  static async load(module: Promise<Response>): Promise<Exchange> {
    const exchange = new Exchange();
    const textWidth = (font: number, address: number, size: number) => widthIn(fonts[font]!)(exchange.read(address, size));
    const compiled = await WebAssembly.compileStreaming(module);
    // What a C library asks of a system, and what nothing of the module calls.
    const stubs: WebAssembly.Imports = { mivo: { textWidth } };
    for (const { module: from, name } of WebAssembly.Module.imports(compiled)) if (from !== "mivo") (stubs[from] ??= {})[name] = () => 0;
    const { exports } = await WebAssembly.instantiate(compiled, stubs);
    exchange.exports = exports as Exchange["exports"];
    (exports["_initialize"] as Exported)();
    return exchange;
  }

  value(name: string, ...given: (number | boolean | string | number[])[]): number {
    const lent: number[] = [];
    const flat = given.flatMap((value) => {
      if (typeof value === "number") return value;
      if (typeof value === "boolean") return Number(value);
      const bytes = typeof value === "string" ? this.encoder.encode(value) : new Uint8Array(new Float64Array(value).buffer);
      const address = (this.exports["allocate"] as Exported)(Math.max(1, bytes.length));
      new Uint8Array(this.exports.memory.buffer, address, bytes.length).set(bytes);
      lent.push(address);
      return [address, typeof value === "string" ? bytes.length : value.length];
    });
    const answer = (this.exports[name] as Exported)(...flat);
    for (const address of lent) (this.exports["release"] as Exported)(address);
    return answer;
  }

  ask(name: string, ...given: (number | boolean | string | number[])[]): { numbers: number[]; text: string } {
    const [numbers = 0, count = 0, text = 0, size = 0] = new Uint32Array(this.exports.memory.buffer, this.value(name, ...given), 4);
    return { numbers: [...new Float64Array(this.exports.memory.buffer, numbers, count)], text: this.read(text, size) };
  }

  private read(address: number, size: number): string {
    return this.decoder.decode(new Uint8Array(this.exports.memory.buffer, address, size));
  }
}

// Records of so many numbers each that follow each other.
function* inGroups(numbers: number[], size: number, from = 0): Generator<number[]> {
  for (let at = from; at < numbers.length; at += size) yield numbers.slice(at, at + size);
}

const joined = (texts: string[]) => texts.map((text) => `${text}\0`).join("");
const zoneOf = (place: number) => (place < 0 ? null : place);

export async function loadGeometry(module: Promise<Response>): Promise<Geometry> {
  const drawing = await Exchange.load(module);
  return {
    dayBars(width, height, unit, count, widestHours) {
      const [plotWidth = 0, pitch = 0, maxScroll = 0, baseline = 0, barArea = 0, frameWidth = 0, visibleColumns = 1, gutter = 0] =
        drawing.ask("dayBars", width, height, units[unit], count, widestHours).numbers;
      return { width, height, unit, count, plotWidth, pitch, maxScroll, baseline, barArea, frameWidth, visibleColumns, gutter };
    },
    bar(layout, place, value) {
      const [x = 0, y = 0, width = 0, height = 0] = drawing.ask("bar", ...given(layout), place, value).numbers;
      return { x, y, width, height };
    },
    barCorners(width, height) {
      const [top = 0, bottom = 0] = drawing.ask("barCorners", width, height).numbers;
      return { top, bottom };
    },
    labelled: (layout, first, last, widest) => drawing.ask("labelledBars", ...given(layout), first, last, widest).numbers,
    popup(layout, { popupXOffset, popupYOffset, popupWidth, popupLabel }, barMiddle, value) {
      const { numbers, text } = drawing.ask(
        "popup", ...given(layout), popupXOffset, popupYOffset, popupWidth, barMiddle, value, roomAtTheSides, popupLabel,
      );
      const [x = 0, y = 0, width = 0, height = 0, pointerX = 0, pointerFoot = 0, pointsDown, isSmall, ...middles] = numbers;
      return {
        body: { x, y, width, height },
        pointerX,
        pointerFoot,
        pointsDown: pointsDown === 1,
        isSmall: isSmall === 1,
        lines: text.split("\n").map((line, place) => ({ text: line, y: middles[place] ?? 0 })),
      };
    },
    lineChart(width, height, { lines, scrolls, domain, visible }) {
      const texts = joined(lines.map((line) => line.widestText));
      const [plotWidth = 0, contentWidth = 0, baseline = 0, top = 0, bottom = 0, areaTop = 0, gutter = 0] = drawing.ask(
        "lineChart", width, height, lines.length === 2, scrolls, domain.start, domain.end, visible.end - visible.start, texts,
      ).numbers;
      return { plotWidth, contentWidth, baseline, top, bottom, areaTop, gutter };
    },
    labelsThatFit(labels, from, to, width) {
      const places = labels.flatMap(({ date, until, isPresent }) => [date, until, Number(isPresent)]);
      const { numbers } = drawing.ask("labelsThatFit", width, from, to, places, joined(labels.map(({ text }) => text)));
      return [...inGroups(numbers, 3)].map(([label = 0, x = 0, isCentred]) => ({ label, x, isCentred: isCentred === 1 }));
    },
    gutterPlaces: (ys) => drawing.ask("gutterPlaces", ys).numbers,
    hasMarks: (plotWidth, pointsInPlot) => drawing.value("hasMarks", plotWidth, pointsInPlot) !== 0,
    annotation({ plotWidth, top, bottom }, innerWidth, isPair, at, date, values) {
      const words = joined([date, ...values]);
      const [x = 0, y = 0, width = 0, ...rest] = drawing.ask("annotation", plotWidth, top, bottom, innerWidth, isPair, at.x, at.y, words).numbers;
      return { x, y, width, height: 46, values: [...inGroups(rest, 3)].map(([line = 0, mark = 0, text = 0]) => ({ line, mark, text })) };
    },
    ring(seconds, span, isEating) {
      const { numbers } = drawing.ask("ring", seconds, span, isEating);
      const arcs = [...inGroups(numbers, 4, 2)].map(([zone = -1, isReached, from = 0, turn = 0]) => ({ zone: zoneOf(zone), isReached: isReached === 1, from, turn }));
      return { arcs, head: { x: numbers[0] ?? 0, y: numbers[1] ?? 0 } };
    },
    ringMark(at, span, textWidth, width, height) {
      const [x = 0, y = 0] = drawing.ask("ringMark", at, span, textWidth, width, height).numbers;
      return { x, y };
    },
    strip: (seconds, span, width) =>
      [...inGroups(drawing.ask("strip", seconds, span, width).numbers, 3)].map(([zone = -1, x = 0, partWidth = 0]) => ({ zone: zoneOf(zone), x, width: partWidth })),
    badge(shape, threshold, count, number, dark) {
      const { numbers, text } = drawing.ask("badge", shape === "streak", threshold, count >= threshold, dark, number);
      const end = text.indexOf("\n");
      return { svg: text.slice(end + 1), numberColor: text.slice(0, end), numberSize: numbers[0] ?? 0, numberMiddle: numbers[1] ?? 0 };
    },
  };
}

function given({ width, height, unit, count, gutter }: { width: number; height: number; unit: keyof typeof units; count: number; gutter: number }) {
  return [width, height, units[unit], count, gutter] as const;
}
