// SPDX-License-Identifier: MIT
// The fasting tab: the fast that runs or the eating window, and below it, or beside it where there is room, the history.
import { usePage } from "../engine/Source";
import { FastCard } from "./FastCard";
import { History } from "./History";

export function FastingPage({ wide }: { wide: boolean }) {
  const page = usePage("fasting");
  return (
    <main class={wide ? "page fasting two-columns" : "page fasting"}>
      <div class="fast-side">
        <header class="title-bar">
          <h1 class="text-title">{page?.title}</h1>
        </header>
        {page && <FastCard page={page} />}
      </div>
      <History />
    </main>
  );
}
