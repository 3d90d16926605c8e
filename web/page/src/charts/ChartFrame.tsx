// SPDX-License-Identifier: MIT
// What all charts have around them: what keys do, what is said of the selection, and the menu.
import type { ComponentChildren, RefCallback } from "preact";
import { useState } from "preact/hooks";
import { ChoiceRow } from "../controls/Rows";
import { Sheet } from "../controls/Sheet";
import { usePage } from "../engine/Source";
import { isMirrored } from "./Drawing";

interface ChartFrameProps {
  frame: RefCallback<HTMLDivElement>;
  selection: string;
  height: number;
  onMove: (steps: number) => void;
  onEnd: (latest: boolean) => void;
  onClear: () => void;
  onToggle: () => void;
  onTable: () => void;
  children: ComponentChildren;
}

export function ChartFrame(props: ChartFrameProps) {
  const { frame, selection, height, onMove, onEnd, onClear, onToggle, onTable, children } = props;
  const [isMenuOpen, openMenu] = useState(false);
  const forward = isMirrored() ? -1 : 1;
  const keys: Record<string, () => void> = {
    ArrowLeft: () => onMove(-forward),
    ArrowRight: () => onMove(forward),
    Home: () => onEnd(false),
    End: () => onEnd(true),
    Enter: onToggle,
    Escape: onClear,
    ContextMenu: () => openMenu(true),
  };
  return (
    <>
      <div
        ref={frame}
        class="chart"
        style={{ blockSize: `${height}px` }}
        onKeyDown={(event) => {
          const act = keys[event.key];
          if (!act || (event.key === "Escape" && selection === "")) return;
          event.preventDefault();
          act();
        }}
        onContextMenu={(event) => {
          event.preventDefault();
          openMenu(true);
        }}
      >
        {children}
      </div>
      <span class="heard" role="status">
        {selection}
      </span>
      {isMenuOpen && <ChartMenu value={selection} onTable={onTable} onClose={() => openMenu(false)} />}
    </>
  );
}

function ChartMenu({ value, onTable, onClose }: { value: string; onTable: () => void; onClose: () => void }) {
  const words = usePage("words");
  const act = (then: () => void) => () => {
    onClose();
    then();
  };
  return (
    <Sheet title={value || (words?.chart ?? "")} onClose={onClose}>
      {value !== "" && <ChoiceRow text={words?.copyValue ?? ""} onClick={act(() => void navigator.clipboard.writeText(value))} />}
      <ChoiceRow text={words?.showAsTable ?? ""} onClick={act(onTable)} />
    </Sheet>
  );
}

/// A chart without data: three lines, and what to do.
export function EmptyChart({ text }: { text: string }) {
  return (
    <div class="empty-chart">
      <p class="text-body secondary">{text}</p>
    </div>
  );
}
