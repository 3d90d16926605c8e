// SPDX-License-Identifier: MIT
import type { ComponentChildren } from "preact";
import { useId, useLayoutEffect, useRef } from "preact/hooks";
import { usePage } from "../engine/Source";
import { IconButton } from "./Buttons";

interface SheetProps {
  title: string;
  onClose: () => void;
  children: ComponentChildren;
}

/// A sheet over everything: slides up from the bottom; in wide windows it stands in the middle. Escape and a tap beside it
/// close it; the keys stay within it, and go back to what had them before.
export function Sheet({ title, onClose, children }: SheetProps) {
  const words = usePage("words");
  const dialog = useRef<HTMLDialogElement | null>(null);
  const heading = useId();
  // Before what stands in it is laid out: nothing can be scrolled or focused in a dialog that is not shown.
  const show = (shown: HTMLDialogElement | null) => {
    if (!shown || shown.open) return;
    dialog.current = shown;
    shown.showModal();
    shown.focus();
  };
  useLayoutEffect(() => () => dialog.current?.close(), []);
  return (
    <dialog
      ref={show}
      class="sheet"
      tabIndex={-1}
      aria-labelledby={heading}
      onCancel={(event) => {
        event.preventDefault();
        onClose();
      }}
      onPointerDown={(event) => event.target === dialog.current && onClose()}
    >
      <div class="sheet-body">
        <header class="sheet-head">
          <h2 class="text-headline" id={heading}>
            {title}
          </h2>
          <IconButton icon="close" text={words?.close ?? ""} onClick={onClose} />
        </header>
        <div class="sheet-content">{children}</div>
      </div>
    </dialog>
  );
}

/// What a sheet offers to do, at its foot.
export function SheetButtons({ children }: { children: ComponentChildren }) {
  return <div class="sheet-buttons">{children}</div>;
}
