// SPDX-License-Identifier: MIT
import type { RingMark } from "mivo";
import { useGeometry, useSize, widthIn, zones } from "./Drawing";
import type { RingArc } from "./Geometry";

const box = 300;
const radius = 118;

function arcPath({ from, turn }: RingArc): string {
  const at = (degrees: number) => {
    const angle = (degrees / 180) * Math.PI;
    return `${(150 + radius * Math.sin(angle)).toFixed(2)} ${(150 - radius * Math.cos(angle)).toFixed(2)}`;
  };
  const end = Math.min(turn, 359.99);
  return `M${at(from)}A${radius} ${radius} 0 ${end > 180 ? 1 : 0} 1 ${at(from + end)}`;
}

interface ZoneRingProps {
  seconds: number;
  span: number;
  isEating: boolean;
  marks: readonly RingMark[];
}

/// The ring of a running fast or of the eating window. It runs clockwise in every layout.
export function ZoneRing({ seconds, span, isEating, marks }: ZoneRingProps) {
  const geometry = useGeometry();
  const { ref, size } = useSize<SVGSVGElement>();
  const { width, height } = size && size.height > 0 ? size : { width: box, height: box };
  const shown = (box * width) / height;
  const textWidth = widthIn("axisStrong");
  const { arcs, head } = geometry.ring(seconds, span, isEating);
  return (
    <svg class="zone-ring" ref={ref} viewBox={`${(box - shown) / 2} 0 ${shown} ${box}`} aria-hidden="true">
      {arcs.map((arc) => (
        <path class={arc.isReached ? "reached" : "ahead"} data-accent={arc.zone === null ? "eating" : zones[arc.zone]} d={arcPath(arc)} />
      ))}
      {marks.map((mark) => {
        const { x, y } = geometry.ringMark(mark.seconds, span, textWidth(mark.text), width, height);
        return (
          <text class="axis-strong" direction="ltr" x={x} y={y} dominant-baseline="central">
            {mark.text}
          </text>
        );
      })}
      <circle class="halo" cx={head.x} cy={head.y} r="14" />
      <circle class="head" cx={head.x} cy={head.y} r="9" />
    </svg>
  );
}
