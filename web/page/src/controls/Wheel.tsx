// SPDX-License-Identifier: MIT
// A list of choices that turns: the one in the middle is chosen. Fingers and the wheel scroll it, a tap on a row and the
// keys turn it; digits choose the number that they type.
import { useLayoutEffect, useRef, useState } from "preact/hooks";
import { useRows } from "../engine/Source";

const rowSize = 36;
const around = 12;
const restsAfter = 100;
const numberEndsAfter = 1500;

interface WheelProps {
  list: "days" | "hours" | "minutes";
  count: number;
  value: number;
  spoken: string;
  page: number;
  home?: number;
  onTurn: (place: number) => void;
}

export function Wheel({ list, count, value, spoken, page, home = 0, onTurn }: WheelProps) {
  const element = useRef<HTMLDivElement>(null);
  const timer = useRef(0);
  const typed = useRef({ number: 0, at: 0 });
  const [middle, setMiddle] = useState(value);
  const first = Math.max(0, Math.floor(middle / around - 1) * around);
  const shown = useRows(list, first, Math.min(3 * around, count - first));
  useLayoutEffect(() => {
    if (timer.current === 0 && element.current) element.current.scrollTop = value * rowSize;
    setMiddle(value);
  }, [value]);
  useLayoutEffect(() => () => clearTimeout(timer.current), []);

  const turnTo = (place: number) => onTurn(Math.max(0, Math.min(count - 1, place)));
  const onScroll = () => {
    const at = Math.round((element.current?.scrollTop ?? 0) / rowSize);
    setMiddle(at);
    clearTimeout(timer.current);
    timer.current = window.setTimeout(() => {
      timer.current = 0;
      if (at !== value) onTurn(at);
    }, restsAfter);
  };
  const onKeyDown = (event: KeyboardEvent) => {
    const moves: Record<string, number> = {
      ArrowUp: value - 1,
      ArrowDown: value + 1,
      PageUp: value - page,
      PageDown: value + page,
      Home: home,
      End: count - 1,
    };
    let place = moves[event.key];
    if (/^[0-9]$/.test(event.key) && list !== "days") {
      const digit = Number(event.key);
      const longer = 10 * typed.current.number + digit;
      place = event.timeStamp - typed.current.at < numberEndsAfter && longer < count ? longer : digit;
      typed.current = { number: place, at: event.timeStamp };
    }
    if (place === undefined) return;
    event.preventDefault();
    turnTo(place);
  };
  return (
    <div
      class={`wheel of-${list}`}
      role="spinbutton"
      tabIndex={0}
      aria-label={spoken}
      aria-valuenow={value}
      aria-valuemin={0}
      aria-valuemax={count - 1}
      aria-valuetext={spoken}
      ref={element}
      onScroll={onScroll}
      onKeyDown={onKeyDown}
    >
      <div class="wheel-rows" style={{ blockSize: `${count * rowSize}px` }}>
        {shown?.rows.map((text, index) => {
          const place = shown.first + index;
          return (
            <div
              key={place}
              class={place === middle ? "wheel-row chosen" : "wheel-row"}
              style={{ insetBlockStart: `${place * rowSize}px` }}
              onClick={() => turnTo(place)}
            >
              {text}
            </div>
          );
        })}
      </div>
    </div>
  );
}
