// SPDX-License-Identifier: MIT
// Pages that the engine once composed answer in its place. What is open, and what is chosen among a few, is
// followed, so that the page can be driven; nothing else is decided.
import type { Action } from "mivo";
import { type EngineModule, events, serve } from "../../src/worker/serve";

interface Recording {
  pages: Record<string, any>;
  lists: Record<string, unknown[]>;
}

const tabs = ["fasting", "statistics", "settings"];
const pushed = ["badges", "roadmap", "weights", "cards", "reminders", "about", "backups"];
const badgeLists = ["milestones", "streaks"];
const below: Record<string, string> = { feedback: "roadmap", editWeight: "weights", weightMenu: "weights", restore: "backups", eatingWindow: "reminders", milestones: "badges", streaks: "badges" };

const name = new URL(self.location.href).searchParams.get("recording") ?? "three-weeks";
let pages: Recording["pages"] = {};
let lists: Recording["lists"] = {};
const sent: Action[] = [];

function open(screen: string): void {
  const screens = pages["screens"];
  if (tabs.includes(screen)) pages["screens"] = { tab: screen, page: "", sheet: "" };
  else if (pushed.includes(screen)) pages["screens"] = { ...screens, page: screen, sheet: "" };
  else if (badgeLists.includes(screen)) pages["badges"] = { ...pages["badges"], list: screen };
  else pages["screens"] = { ...screens, page: below[screen] ?? screens.page, sheet: screen };
}

function back(): void {
  const screens = pages["screens"];
  if (screens.sheet !== "") pages["screens"] = { ...screens, sheet: "" };
  else if (pages["badges"].list) pages["badges"] = { ...pages["badges"], list: null };
  else pages["screens"] = { ...screens, page: "" };
}

const changes: Record<string, (value: any) => void> = {
  didOpen: open,
  didClose: back,
  didGoBack: back,
  didChooseFiles: () => open("import"),
  didTapFast: () => open("editFast"),
  didTapWeight: () => open("editWeight"),
  didDismissMessages: () => (pages["message"] = { text: "", button: "", isFailure: false, seconds: 0 }),
  didDeleteFastOfRow: (row: number) => {
    lists["historyRows"]!.splice(row, 1);
    pages["history"] = { ...pages["history"], count: lists["historyRows"]!.length };
    pages["message"] = { text: "Fast deleted", button: "Undo", isFailure: false, seconds: 6 };
  },
  didChooseTextSize: (percent: number) => {
    pages["appearance"] = { ...pages["appearance"], textScale: percent / 100 };
    pages["settings"] = { ...pages["settings"], textSize: { ...pages["settings"].textSize, value: percent } };
  },
  didChooseAppearance: (place: number) => (pages["appearance"] = { ...pages["appearance"], mode: ["system", "light", "dark"][place] }),
  didTapBar: (tapped: string) => {
    const selected = lists["fastingBars"]!.findIndex((bar: any) => bar.id === tapped);
    const chart = pages["fastingChart"];
    pages["fastingChart"] =
      chart.selected === selected
        ? { ...chart, selected: null, popup: null, spokenSelection: "" }
        : { ...chart, selected, popup: { popupLabel: "16h 59m", popupXOffset: 10 * selected, popupYOffset: -150, popupWidth: 90 }, spokenSelection: "16h 59m" };
  },
};

async function load(): Promise<EngineModule> {
  ({ pages, lists } = (await (await fetch(`recorded-${name}.json`)).json()) as Recording);
  return {
    open: async () => null,
    isDamaged: () => false,
    send: (action) => {
      sent.push(action);
      const [kind, value]: [string, any] = typeof action === "string" ? [action, undefined] : Object.entries(action)[0]!;
      const tapped = kind === "statistics" ? value.fastingChartAction?.didTapBar : undefined;
      const change = tapped === undefined ? changes[kind] : () => changes["didTapBar"]!(tapped);
      if (!change) return;
      const before = { ...pages };
      change(value);
      const changed = Object.keys(pages).filter((page) => pages[page] !== before[page]);
      events.changed(kind === "didDeleteFastOfRow" ? [...changed, "historyRows"] : changed);
    },
    page: (asked) => (asked === "sent" ? sent : (pages[asked] ?? null)),
    rows: (asked, first, count) => {
      if (asked === "days") return Array.from({ length: count }, (_, index) => `Day ${first + index}`); // of which there are millions
      return (lists[asked] ?? []).slice(first, first + count);
    },
    offer: () => {},
    database: () => new Uint8Array(16),
    setWatched: () => {},
    close: () => {},
  };
}

serve(load());
