// SPDX-License-Identifier: MIT
import { ZoneStrip } from "./charts/ZoneStrip";
import { Icon, Swatch } from "./controls/Icon";
import { NumberText } from "./controls/NumberText";
import { usePage, useSend } from "./engine/Source";

const tabs = ["fasting", "statistics", "settings"] as const;

function TabButtons() {
  const screens = usePage("screens");
  const words = usePage("words");
  const send = useSend();
  return tabs.map((tab) => {
    const isChosen = screens?.tab === tab;
    return (
      <button type="button" class="tab" aria-current={isChosen ? "page" : undefined} onClick={() => send({ didOpen: tab })}>
        <Icon name={tab === "statistics" && isChosen ? "statisticsChosen" : tab} />
        <span>{words?.[tab]}</span>
      </button>
    );
  });
}

/// The tabs below the page.
export function TabBar() {
  return (
    <nav class="tab-bar">
      <TabButtons />
    </nav>
  );
}

/// The tabs of wide windows, with the running fast at the foot.
export function SideBar() {
  return (
    <nav class="side-bar">
      <p class="brand text-section">
        <svg width="28" height="28" viewBox="0 0 28 28" aria-hidden="true">
          <use href={`${ICON_FILE}#sign`} />
          <circle class="dot" cx="21.8" cy="6.2" r="3" />
        </svg>
        Mivo
      </p>
      <div class="side-tabs">
        <TabButtons />
      </div>
      <RunningFastCard />
    </nav>
  );
}

declare const ICON_FILE: string;

function RunningFastCard() {
  const fasting = usePage("fasting");
  const send = useSend();
  if (!fasting?.isRunning) return null;
  return (
    <button type="button" class="running-fast" onClick={() => send({ didOpen: "fasting" })}>
      <span class="heard">{fasting.spoken}</span>
      <span class="running-face" aria-hidden="true">
        <span class="text-label secondary">
          <Swatch accent={fasting.zone} />
          {fasting.zoneName}
        </span>
        <NumberText text={fasting.duration} style="number-small" even />
        <ZoneStrip seconds={fasting.ringSeconds} span={fasting.ringSpan} rest />
        <span class="text-label secondary">{fasting.goalText}</span>
      </span>
    </button>
  );
}
