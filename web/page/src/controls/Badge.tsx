// SPDX-License-Identifier: MIT
import { useGeometry } from "../charts/Drawing";
import { useIsDark } from "../theme/Appearance";

const grid = 96;
const smallestWithNumber = 48;

interface BadgeProps {
  shape: "milestone" | "streak";
  threshold: number;
  isEarned: boolean;
  number: string;
  size: number;
}

/// A badge; what it is stands beside it, in words.
export function Badge({ shape, threshold, isEarned, number, size }: BadgeProps) {
  const art = useGeometry().badge(shape, threshold, isEarned ? threshold : 0, number, useIsDark());
  return (
    <svg class="badge" viewBox={`0 0 ${grid} ${grid}`} style={{ inlineSize: `${size}px` }} aria-hidden="true">
      <image href={`data:image/svg+xml,${encodeURIComponent(art.svg)}`} width={grid} height={grid} />
      {size >= smallestWithNumber && (
        <text x={grid / 2} y={art.numberMiddle} font-size={art.numberSize} fill={art.numberColor} direction="ltr">
          {number}
        </text>
      )}
    </svg>
  );
}
