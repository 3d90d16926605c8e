// SPDX-License-Identifier: MIT
import type { ComponentChildren } from "preact";

/// Stands in for the app where it cannot show any data: why, and what helps.
export function Alone({ title = "", sentence, children }: { title?: string; sentence: string; children?: ComponentChildren }) {
  return (
    <main class="alone">
      <section class="card" role="alert">
        {title !== "" && <h1 class="text-headline">{title}</h1>}
        <p class="text-body breaks">{sentence}</p>
        {children}
      </section>
    </main>
  );
}
