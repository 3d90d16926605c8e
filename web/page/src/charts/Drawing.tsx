// SPDX-License-Identifier: MIT
// What all pictures need: the geometry, how wide texts are, and the reading direction.
import { createContext } from "preact";
import { useCallback, useContext, useLayoutEffect, useState } from "preact/hooks";
import type { Geometry, TextWidth } from "./Geometry";

const Context = createContext<Geometry | null>(null);
export const GeometryProvider = Context.Provider;

export function useGeometry(): Geometry {
  const geometry = useContext(Context);
  if (!geometry) throw new Error("no geometry");
  return geometry;
}

export type ChartFont = "axis" | "axisStrong" | "caption" | "value" | "valueSmall";

// For charts, whose room does not grow with the text: up to one and a half times the size.
const sizes: { [font in ChartFont]: [weight: number, size: number] } = {
  axis: [500, 11],
  axisStrong: [600, 11],
  caption: [400, 12],
  value: [600, 13],
  valueSmall: [600, 11],
};
const mostScale = 1.5;

/// As it was applied last; asking the styles would lay everything out.
export function textScale(): number {
  return Number(document.documentElement.dataset["scale"] ?? 1);
}

let canvas: CanvasRenderingContext2D | null = null;
let family: string | undefined;
const widths = new Map<string, number>();

/// How wide a text is in a font of charts, as it is painted.
export function widthIn(font: ChartFont): TextWidth {
  const [weight, size] = sizes[font];
  family ??= getComputedStyle(document.documentElement).getPropertyValue("--text-family");
  const described = `${weight} ${size * Math.min(mostScale, textScale())}px ${family}`;
  return (text) => {
    const key = described + text;
    let width = widths.get(key);
    if (width === undefined) {
      canvas ??= document.createElement("canvas").getContext("2d")!;
      canvas.font = described;
      width = canvas.measureText(text).width;
      if (widths.size > 5000) widths.clear();
      widths.set(key, width);
    }
    return width;
  };
}

/// The size of an element, followed; null before it was laid out.
export function useSize<Measured extends Element>() {
  const [element, setElement] = useState<Measured | null>(null);
  const [size, setSize] = useState<{ width: number; height: number } | null>(null);
  useLayoutEffect(() => {
    if (!element) return;
    const measure = () => {
      const { width, height } = element.getBoundingClientRect();
      setSize((before) => (before?.width === width && before.height === height ? before : { width, height }));
    };
    measure();
    const observer = new ResizeObserver(measure);
    observer.observe(element);
    return () => observer.disconnect();
  }, [element]);
  const ref = useCallback((shown: Measured | null) => setElement(() => shown), []);
  return { ref, element, size };
}

export function isMirrored(): boolean {
  return document.documentElement.dir === "rtl";
}

/// `x` in a picture so wide, from the leading edge.
export function fromLeading(x: number, width: number): number {
  return isMirrored() ? width - x : x;
}

export const zones = ["anabolic", "catabolic", "fatBurning", "ketosis", "deepKetosis"] as const;
