// SPDX-License-Identifier: MIT
import type { ComponentChildren } from "preact";
import { useEffect, useLayoutEffect, useRef } from "preact/hooks";
import { usePage, useSend } from "../engine/Source";
import { IconButton } from "./Buttons";

interface PushedPageProps {
  title: string;
  wide?: boolean;
  children: ComponentChildren;
}

/// A page that was pushed over another one: a way back and a title above what scrolls. Escape goes back.
export function PushedPage({ title, wide = false, children }: PushedPageProps) {
  const words = usePage("words");
  const send = useSend();
  const page = useRef<HTMLElement>(null);
  useLayoutEffect(() => {
    const before = document.activeElement;
    page.current?.focus({ preventScroll: true });
    return () => {
      if (before instanceof HTMLElement && before.isConnected) before.focus({ preventScroll: true });
    };
  }, []);
  useEffect(() => {
    const onKeyDown = (event: KeyboardEvent) => {
      if (event.key === "Escape" && !event.defaultPrevented && !document.querySelector("dialog[open]")) send("didGoBack");
    };
    document.addEventListener("keydown", onKeyDown);
    return () => document.removeEventListener("keydown", onKeyDown);
  }, [send]);
  return (
    <main class="page pushed" ref={page} tabIndex={-1} aria-label={title}>
      <header class="push-bar">
        <IconButton icon="back" text={words?.back ?? ""} onClick={() => send("didGoBack")} turns />
        <h1 class="text-headline">{title}</h1>
      </header>
      <div class={wide ? "pushed-content wide" : "pushed-content"}>{children}</div>
    </main>
  );
}
