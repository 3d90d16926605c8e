// SPDX-License-Identifier: MIT
// The window: a page with tabs below, or beside it where there is room, and what is presented over it.
import type { Screen } from "mivo";
import { useEffect, useLayoutEffect, useRef, useState } from "preact/hooks";
import { MessageBar } from "./controls/MessageBar";
import { FileDrop } from "./data/FileDrop";
import { usePage, useSend } from "./engine/Source";
import { FastingPage } from "./fasting/FastingPage";
import { pushedPages } from "./presented/pages";
import { Sheets } from "./presented/Sheets";
import { SettingsPage } from "./settings/SettingsPage";
import { Printed } from "./statistics/Printed";
import { type ChartTable, StatisticsPage } from "./statistics/StatisticsPage";
import { BrowserNotices } from "./platform/BrowserNotices";
import { SideBar, TabBar } from "./Tabs";
import { useAppearance } from "./theme/Appearance";

const wideFrom = matchMedia("(min-width: 900px)");

function useIsWide(): boolean {
  const [isWide, setIsWide] = useState(wideFrom.matches);
  useEffect(() => {
    const follow = () => setIsWide(wideFrom.matches);
    wideFrom.addEventListener("change", follow);
    return () => wideFrom.removeEventListener("change", follow);
  }, []);
  return isWide;
}

export interface ShownTable {
  list: ChartTable;
  title: string;
}

export function App() {
  useAppearance();
  const screens = usePage("screens");
  const send = useSend();
  const wide = useIsWide();
  const [table, setTable] = useState<ShownTable | null>(null);
  const [prints, setPrints] = useState(false);
  const openTable = (list: ChartTable, title: string) => {
    setTable({ list, title });
    send({ didOpen: "table" });
  };
  useShortcuts();
  useSystemBack();
  useKeptScroll(screens?.tab ?? "", screens?.page ?? "");
  if (!screens) return null;
  if (prints) return <Printed onDone={() => setPrints(false)} />;
  const Pushed = pushedPages[screens.page as Screen];
  return (
    <div class={wide ? "window wide" : "window"}>
      {wide && <SideBar />}
      <div class="stage">
        <div class="tab-page" inert={Pushed !== undefined} hidden={Pushed !== undefined}>
          {screens.tab === "fasting" && <FastingPage wide={wide} />}
          {screens.tab === "statistics" && <StatisticsPage wide={wide} onTable={openTable} />}
          {screens.tab === "settings" && <SettingsPage />}
        </div>
        {Pushed && <Pushed key={screens.page} />}
        <BrowserNotices />
        <MessageBar />
      </div>
      {!wide && !Pushed && <TabBar />}
      <Sheets screen={screens.sheet as Screen | ""} table={table} onPrint={() => setPrints(true)} />
      <FileDrop />
    </div>
  );
}

const tabs: Screen[] = ["fasting", "statistics", "settings"];

function useShortcuts(): void {
  const send = useSend();
  const message = usePage("message");
  useEffect(() => {
    const onKeyDown = (event: KeyboardEvent) => {
      if (!event.ctrlKey && !event.metaKey) return;
      const isTyping = event.target instanceof HTMLInputElement || event.target instanceof HTMLTextAreaElement;
      if (event.key === "z" && !event.shiftKey && !isTyping && message?.button && !message.isFailure) {
        event.preventDefault();
        send("didTapMessage");
      }
      const tab = event.altKey ? tabs[Number(event.key) - 1] : undefined; // without Alt they are the browser's own tabs
      if (tab) send({ didOpen: tab });
    };
    document.addEventListener("keydown", onKeyDown);
    return () => document.removeEventListener("keydown", onKeyDown);
  }, [send, message]);
}

// The document scrolls for all of them: a tab is found again where it was left, and what is pushed begins at its top. The
// browser would do it by its history, whose entries are none of these.
history.scrollRestoration = "manual";

function useKeptScroll(tab: string, pushed: string): void {
  const places = useRef(new Map<string, number>());
  const shown = useRef({ tab, pushed });
  const { tab: tabBefore, pushed: pushedBefore } = shown.current;
  const hasChanged = tab !== tabBefore || pushed !== pushedBefore;
  if (hasChanged && pushedBefore === "") places.current.set(tabBefore, scrollY); // what was shown still is
  shown.current = { tab, pushed };
  useLayoutEffect(() => scrollTo(0, pushed === "" ? (places.current.get(tab) ?? 0) : 0), [tab, pushed]);
}

// The system's way back closes the innermost that is open. While something is, one entry of the history stands for it.
function useSystemBack(): void {
  const send = useSend();
  const screens = usePage("screens");
  const isOpen = screens !== undefined && (screens.page !== "" || screens.sheet !== "");
  useEffect(() => {
    if (!isOpen) return;
    history.pushState("open", "");
    const onBack = () => {
      history.pushState("open", "");
      send("didGoBack");
    };
    addEventListener("popstate", onBack);
    return () => {
      removeEventListener("popstate", onBack);
      history.back();
    };
  }, [isOpen, send]);
}
