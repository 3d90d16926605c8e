// SPDX-License-Identifier: MIT
// The part of a chart that scrolls, by the browser's own means: with fingers, wheels and keys, and with momentum.
import type { ComponentChildren, RefObject } from "preact";
import { useLayoutEffect, useRef, useState } from "preact/hooks";
import { isMirrored } from "./Drawing";

const restsAfter = 120;

export interface Scrolling {
  ref: RefObject<HTMLDivElement | null>;
  /// Points from the leading edge.
  scroll: number;
  scrollTo: (scroll: number, smoothly: boolean) => void;
  /// Whether the user, or what they set going, moves it just now.
  isUnderway: () => boolean;
  onScroll: () => void;
}

/// `rested` is called once nothing moves any more, with where it stands.
export function useScrolling(rested: (scroll: number) => void): Scrolling {
  const ref = useRef<HTMLDivElement>(null);
  const [scroll, setScroll] = useState(0);
  const timer = useRef(0);
  const movedByCode = useRef<number | null>(null);
  const told = useRef(rested);
  told.current = rested;
  const position = () => Math.abs(ref.current?.scrollLeft ?? 0);
  useLayoutEffect(() => () => clearTimeout(timer.current), []);
  return {
    ref,
    scroll,
    scrollTo: (wanted, smoothly) => {
      if (!ref.current || Math.abs(position() - wanted) < 0.5) return;
      movedByCode.current = smoothly ? null : wanted;
      ref.current.scrollTo({ left: isMirrored() ? -wanted : wanted, behavior: smoothly ? "smooth" : "instant" });
      setScroll(position());
    },
    isUnderway: () => timer.current !== 0,
    onScroll: () => {
      const at = position();
      setScroll(at);
      const isOwn = movedByCode.current !== null && Math.abs(movedByCode.current - at) < 1;
      movedByCode.current = null;
      if (isOwn) return;
      clearTimeout(timer.current);
      timer.current = window.setTimeout(() => {
        timer.current = 0;
        told.current(position());
      }, restsAfter);
    },
  };
}

interface ScrollerProps {
  name: string;
  scrolling: Scrolling;
  width: number;
  contentWidth: number;
  children: ComponentChildren;
  onPoint: (x: number) => void;
  selectsWhileHeld?: boolean;
}

/// The one stop of a chart for the keyboard. `onPoint` is told where a finger or pointer tapped, from the leading edge of what is seen.
export function Scroller({ name, scrolling, width, contentWidth, children, onPoint, selectsWhileHeld = false }: ScrollerProps) {
  const fromEdge = (event: MouseEvent) => {
    const edges = scrolling.ref.current!.getBoundingClientRect();
    return isMirrored() ? edges.right - event.clientX : event.clientX - edges.left;
  };
  return (
    <div
      class="scroller"
      role="group"
      tabIndex={0}
      aria-label={name}
      ref={scrolling.ref}
      style={{ inlineSize: `${width}px` }}
      onScroll={scrolling.onScroll}
      onClick={(event) => onPoint(fromEdge(event))}
      onPointerMove={(event) => {
        if (selectsWhileHeld && event.pointerType === "mouse" && event.buttons === 1) onPoint(fromEdge(event));
      }}
    >
      <div class="scrolled" style={{ inlineSize: `${contentWidth}px` }}>
        {children}
      </div>
    </div>
  );
}
