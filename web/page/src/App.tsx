// SPDX-License-Identifier: MIT
// The window: a page with tabs below, or beside it where there is room, and what is presented over it.
import type { Screen } from "mivo";
import { useEffect, useState } from "preact/hooks";
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
