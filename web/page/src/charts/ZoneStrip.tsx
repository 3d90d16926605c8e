// SPDX-License-Identifier: MIT
import { fromLeading, useGeometry, useSize, zones } from "./Drawing";

/// A fast as a strip of the zones that it went through, on a scale of `span`; `rest` shows what is not reached of it.
export function ZoneStrip({ seconds, span, rest = false }: { seconds: number; span: number; rest?: boolean }) {
  const geometry = useGeometry();
  const { ref, size } = useSize<SVGSVGElement>();
  const width = size?.width ?? 0;
  return (
    <svg class="zone-strip" ref={ref} aria-hidden="true">
      {width > 0 &&
        geometry
          .strip(seconds, span, width)
          .filter((part) => rest || part.zone !== null)
          .map((part) => (
          <rect
            class={part.zone === null ? "rest" : "part"}
            data-accent={part.zone === null ? undefined : zones[part.zone]}
            x={Math.min(fromLeading(part.x, width), fromLeading(part.x + part.width, width))}
            width={part.width}
            height={6}
            rx={2}
          />
        ))}
    </svg>
  );
}

/// Whether a fast reached its goal: a disc with a tick, or a ring filled as far as it went.
export function GoalMark({ fraction }: { fraction: number }) {
  const around = 2 * Math.PI * 8;
  return (
    <svg class="goal-mark" width="20" height="20" viewBox="0 0 20 20" aria-hidden="true">
      {fraction >= 1 ? (
        <>
          <circle class="disc" cx="10" cy="10" r="10" />
          <path class="tick" d="M5.8 10.4l2.9 2.8l5.6-6" />
        </>
      ) : (
        <>
          <circle class="rest" cx="10" cy="10" r="8" />
          <circle class="done" cx="10" cy="10" r="8" stroke-dasharray={`${Math.max(0, fraction) * around} ${around}`} />
        </>
      )}
    </svg>
  );
}
