// SPDX-License-Identifier: MIT
import type { TrendCard, TrendsCard as Trends } from "mivo";
import { useLayoutEffect, useRef, useState } from "preact/hooks";
import { useSize } from "../charts/Drawing";
import { Card, CardHead } from "../controls/Card";

export function TrendsCard({ card }: { card: Trends }) {
  return (
    <Card class="trends">
      <CardHead title={card.title} />
      <div class="trend-rows">
        {card.rows.map((row) => (
          <TrendRow key={row.zone} row={row} />
        ))}
      </div>
    </Card>
  );
}

function TrendRow({ row }: { row: TrendCard }) {
  return (
    <article class="trend" data-accent={row.zone}>
      <header class="card-head">
        <h3 class="text-body-strong">
          <span class="swatch" data-accent={row.zone} />
          {row.name}
        </h3>
        <span class="text-label secondary">{row.detail}</span>
      </header>
      <p class="text-body secondary">{row.averageFastTimeRangeText}</p>
      <Capsule
        label={row.thisLabel}
        value={row.thisTimeRangeAvg}
        perDay={row.perDay}
        fraction={row.thisTimeRangeFraction}
        inside={row.thisTimeRangeInsideCapsule}
        of="this"
      />
      <Capsule
        label={row.lastLabel}
        value={row.lastTimeRangeAvg}
        perDay={row.perDay}
        fraction={row.lastTimeRangeFraction}
        inside={row.lastTimeRangeInsideCapsule}
        of="last"
      />
    </article>
  );
}

interface CapsuleProps {
  label: string;
  value: string;
  perDay: string;
  fraction: number;
  inside: boolean;
  of: "this" | "last";
}

const padding = 11;
const behind = 8;

/// One average of a trend row: its label, a bar, and the value inside or after it. What is too wide for its bar stands
/// after it, while there is room.
function Capsule({ label, value, perDay, fraction, inside, of }: CapsuleProps) {
  const { ref, size } = useSize<HTMLSpanElement>();
  const texts = useRef<HTMLSpanElement>(null);
  const [textWidth, setTextWidth] = useState(0);
  useLayoutEffect(() => setTextWidth(texts.current?.offsetWidth ?? 0), [value, perDay, size?.width]);
  const track = size?.width ?? 0;
  const bar = fraction > 0 ? Math.max(14, Math.min(1, fraction) * track) : 0;
  const fitsBehind = bar + behind + textWidth <= track;
  const isInside = inside && (textWidth + 2 * padding <= bar || !fitsBehind);
  const place = isInside ? Math.max(padding, bar - padding - textWidth) : Math.min(bar + (fraction > 0 ? behind : 0), track - textWidth);
  return (
    <p class={`capsule of-${of}`}>
      <span class="text-label secondary">{label}</span>
      <span class="capsule-track" ref={ref}>
        {size && <span class="capsule-bar" style={{ inlineSize: `${bar}px` }} />}
        <span class={isInside ? "capsule-text inside" : "capsule-text"} ref={texts} dir="ltr" style={{ insetInlineStart: `${place}px` }}>
          <span class="text-value">{value}</span>
          <span class="text-caption">{perDay}</span>
        </span>
      </span>
    </p>
  );
}
