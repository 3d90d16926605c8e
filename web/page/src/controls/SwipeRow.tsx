// SPDX-License-Identifier: MIT
import type { ComponentChildren } from "preact";
import { useRef, useState } from "preact/hooks";
import { Icon } from "./Icon";

interface SwipeRowProps {
  spoken: string;
  isFirst: boolean;
  onEdit: () => void;
  onRemove: () => void;
  onMenu: () => void;
  children: ComponentChildren;
}

const startsAt = 10;
const removedFrom = 1 / 3;
const comesBackAfter = 600;

/// A row of a list of records. A tap opens it, a long press its menu; a swipe to either side removes it.
export function SwipeRow({ spoken, isFirst, onEdit, onRemove, onMenu, children }: SwipeRowProps) {
  const [away, setAway] = useState(0);
  const begun = useRef<{ x: number; y: number; swipes: boolean } | null>(null);
  const wasSwiped = useRef(false);
  const width = useRef(1);
  const end = () => {
    const swiped = begun.current?.swipes ?? false;
    begun.current = null;
    if (!swiped) return;
    if (Math.abs(away) < width.current * removedFrom) return setAway(0);
    setAway(Math.sign(away) * width.current);
    onRemove();
    setTimeout(() => setAway(0), comesBackAfter); // still there where it could not be removed
  };
  return (
    <>
      {away !== 0 && (
        <span class={away > 0 ? "swiped" : "swiped to-the-left"}>
          <Icon name="trash" />
        </span>
      )}
      <button
        type="button"
        class={begun.current ? "row-face held" : "row-face"}
        tabIndex={isFirst ? 0 : -1}
        aria-haspopup="dialog"
        style={away === 0 ? {} : { transform: `translateX(${away}px)` }}
        onClick={() => (wasSwiped.current ? (wasSwiped.current = false) : onEdit())}
        onContextMenu={(event) => {
          event.preventDefault();
          onMenu();
        }}
        onPointerDown={(event) => {
          wasSwiped.current = false;
          width.current = event.currentTarget.offsetWidth;
          if (event.isPrimary && event.pointerType !== "mouse") begun.current = { x: event.clientX, y: event.clientY, swipes: false };
        }}
        onPointerMove={(event) => {
          const from = begun.current;
          if (!from) return;
          const [x, y] = [event.clientX - from.x, event.clientY - from.y];
          if (!from.swipes && Math.abs(x) > startsAt && Math.abs(x) > Math.abs(y)) {
            from.swipes = wasSwiped.current = true;
            event.currentTarget.setPointerCapture(event.pointerId);
          }
          if (from.swipes) setAway(x);
        }}
        onPointerUp={end}
        onPointerCancel={() => {
          begun.current = null;
          setAway(0);
        }}
      >
        <span aria-hidden="true">{children}</span>
        <span class="heard">{spoken}</span>
      </button>
    </>
  );
}
