// SPDX-License-Identifier: MIT
// A list of any length: rows are asked for, and drawn, in pieces that come into sight. A piece out of sight is as high as
// it was last, or as so many rows usually are.
import type { Lists } from "mivo";
import type { ComponentChild } from "preact";
import { useEffect, useLayoutEffect, useRef, useState } from "preact/hooks";
import { type ListName, useRows } from "../engine/Source";

export const rowsOfAPiece = 24;

interface LongListProps<Name extends ListName> {
  list: Name;
  name: string;
  count: number;
  usualHeight: number;
  row: (row: Lists[Name], place: number) => ComponentChild;
  onRemove?: (place: number) => void;
}

/// For the keyboard all rows are one stop: arrows, Home and End go through them, Delete removes one.
export function LongList<Name extends ListName>({ list, name, count, usualHeight, row, onRemove }: LongListProps<Name>) {
  const element = useRef<HTMLDivElement>(null);
  const focus = (place: number) => {
    const wanted = Math.max(0, Math.min(count - 1, place));
    goToRow(element.current, wanted);
  };
  const onKeyDown = (event: KeyboardEvent) => {
    const item = (event.target as Element).closest<HTMLElement>("[data-place]");
    if (!item) return;
    const place = Number(item.dataset["place"]);
    const moves: Record<string, () => void> = {
      ArrowDown: () => focus(place + 1),
      ArrowUp: () => focus(place - 1),
      Home: () => focus(0),
      End: () => focus(count - 1),
      Delete: () => onRemove?.(place),
    };
    const move = moves[event.key];
    if (!move) return;
    event.preventDefault();
    move();
  };
  const pieces = Math.ceil(count / rowsOfAPiece);
  if (count === 0) return null;
  return (
    <div class="long-list card rows" role="list" aria-label={name} ref={element} onKeyDown={onKeyDown}>
      {Array.from({ length: pieces }, (_, piece) => (
        <Piece
          key={piece}
          list={list}
          first={piece * rowsOfAPiece}
          count={Math.min(rowsOfAPiece, count - piece * rowsOfAPiece)}
          total={count}
          usualHeight={usualHeight}
          row={row}
        />
      ))}
    </div>
  );
}

/// Brings a row of a list into sight and gives it the keys, once it is there.
export function goToRow(list: HTMLElement | null, place: number): void {
  const piece = list?.children[Math.floor(place / rowsOfAPiece)];
  if (!piece) return;
  const find = () => list?.querySelector<HTMLElement>(`[data-place="${place}"] > .row-face`);
  const shown = find();
  if (shown) {
    shown.focus();
    shown.scrollIntoView({ block: "nearest" });
    return;
  }
  piece.scrollIntoView({ block: "start" });
  const observer = new MutationObserver(() => {
    const row = find();
    if (!row) return;
    observer.disconnect();
    row.focus();
    row.scrollIntoView({ block: "start" });
  });
  observer.observe(piece, { childList: true, subtree: true });
}

interface PieceProps<Name extends ListName> {
  list: Name;
  first: number;
  count: number;
  total: number;
  usualHeight: number;
  row: (row: Lists[Name], place: number) => ComponentChild;
}

function Piece<Name extends ListName>(props: PieceProps<Name>) {
  const element = useRef<HTMLDivElement>(null);
  const height = useRef(props.count * props.usualHeight);
  const [isNear, setIsNear] = useState(props.first === 0);
  useEffect(() => {
    const observer = new IntersectionObserver(([entry]) => setIsNear(entry?.isIntersecting ?? false), { rootMargin: "100%" });
    observer.observe(element.current!);
    return () => observer.disconnect();
  }, []);
  const remember = (shown: number) => (height.current = shown);
  return (
    <div class="piece" role="presentation" ref={element} style={isNear ? {} : { blockSize: `${height.current}px` }}>
      {isNear && <NearPiece {...props} usualHeight={height.current} onHeight={remember} />}
    </div>
  );
}

function NearPiece<Name extends ListName>(props: PieceProps<Name> & { onHeight: (height: number) => void }) {
  const { list, first, count, total, usualHeight, row, onHeight } = props;
  const shown = useRows(list, first, count);
  const end = useRef<HTMLDivElement>(null);
  useLayoutEffect(() => {
    const piece = end.current?.parentElement;
    if (shown && piece) onHeight(piece.offsetHeight);
  }, [shown]);
  if (!shown) return <div style={{ blockSize: `${usualHeight}px` }} />;
  return (
    <>
      {shown.rows.map((content, index) => (
        <div class="list-row" role="listitem" data-place={first + index} aria-setsize={total} aria-posinset={first + index + 1}>
          {row(content, first + index)}
        </div>
      ))}
      <div ref={end} hidden />
    </>
  );
}
