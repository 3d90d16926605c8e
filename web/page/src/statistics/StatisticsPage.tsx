// SPDX-License-Identifier: MIT
// The statistics tab: a column of cards that scrolls; on wide windows rows of cards.
import type { ComponentChild } from "preact";
import { useEffect, useRef, useState } from "preact/hooks";
import { SegmentedControl } from "../controls/Rows";
import type { ShownCard, TimeRangeCard } from "../engine/Records";
import { usePage, useSend } from "../engine/Source";
import { AddWeightCard } from "./AddWeightCard";
import { BadgesCard } from "./BadgesCard";
import { DayBarsChartCard, WeightChartCard, WeightFastingChartCard } from "./ChartCards";
import { GoalWeightCard } from "./GoalWeightCard";
import { ConfigureCard, NoticeCard, StartCard, TileCard, TipCard } from "./NoticeCards";
import { SummaryCard } from "./SummaryCard";
import { TrendsCard } from "./TrendsCard";

export type ChartTable = "fastingTable" | "eatingTable" | "weightTable" | "weightFastingTable";
export type OpenTable = (list: ChartTable, title: string) => void;

interface StatisticsPageProps {
  wide: boolean;
  onTable: OpenTable;
}

export function StatisticsPage({ wide, onTable }: StatisticsPageProps) {
  const page = usePage("statistics");
  const words = usePage("words");
  const send = useSend();
  const picker = useRef<HTMLDivElement>(null);
  const sticks = useGoneUnderTheTop(picker);
  const range = page?.cards.find((card) => card.kind === "timeRange")?.content;
  const choose = (place: number) => send({ didChooseTimeRange: place });
  return (
    <main class="page statistics">
      <header class="title-bar">
        <h1 class="text-title">{words?.statistics}</h1>
        {wide && range && <TimeRangeRow card={range} onChoose={choose} />}
      </header>
      {!wide && range && (
        <div class="sticky-range" hidden={!sticks}>
          <SegmentedControl name={range.title} options={range.options} chosen={range.selectedIndex} onChoose={choose} />
        </div>
      )}
      <div class="cards">
        {page?.cards.map((card) => {
          if (card.kind === "timeRange" && wide) return null;
          const [, ofTwo = 6, ofThree = 6] = card.sixths;
          return (
            <div key={card.kind} class={`slot of-${card.kind}`} style={{ "--of-two": ofTwo, "--of-three": ofThree }}>
              {card.kind === "timeRange" ? (
                <div class="range-picker">
                  <h2 class="text-section">{card.content.title}</h2>
                  <p class="text-label secondary">{card.content.prompt}</p>
                  <div ref={picker}>
                    <SegmentedControl name={card.content.title} options={card.content.options} chosen={card.content.selectedIndex} onChoose={choose} />
                  </div>
                </div>
              ) : (
                <CardOfKind card={card} wide={wide} onTable={onTable} />
              )}
            </div>
          );
        })}
      </div>
    </main>
  );
}

// On wide windows in the title row.
function TimeRangeRow({ card, onChoose }: { card: TimeRangeCard; onChoose: (place: number) => void }) {
  return (
    <div class="range-row">
      <div>
        <h2 class="text-body-strong">{card.title}</h2>
        <p class="text-label secondary">{card.prompt}</p>
      </div>
      <SegmentedControl name={card.title} options={card.options} chosen={card.selectedIndex} onChoose={onChoose} />
    </div>
  );
}

function useGoneUnderTheTop(element: { current: HTMLElement | null }): boolean {
  const [isGone, setIsGone] = useState(false);
  const watched = element.current;
  useEffect(() => {
    const shown = element.current;
    if (!shown) return;
    const observer = new IntersectionObserver(
      ([entry]) => setIsGone(entry !== undefined && !entry.isIntersecting && entry.boundingClientRect.top < 8),
      { rootMargin: "-8px 0px 0px 0px", threshold: 1 },
    );
    observer.observe(shown);
    return () => observer.disconnect();
  }, [watched]);
  return isGone;
}

function CardOfKind({ card, wide, onTable }: { card: ShownCard; wide: boolean; onTable: OpenTable }): ComponentChild {
  const send = useSend();
  switch (card.kind) {
    case "tip":
      return <TipCard card={card.content} />;
    case "start":
      return <StartCard card={card.content} />;
    case "configure":
      return <ConfigureCard card={card.content} />;
    case "summary":
      return <SummaryCard card={card.content} wide={wide} />;
    case "overlappingFasts":
      return <NoticeCard card={card.content} icon="warning" caution onClick={() => send({ didOpen: "overlaps" })} />;
    case "donation":
      return <TileCard card={card.content} icon="heart" onClick={() => send({ didOpen: "donations" })} />;
    case "roadmap":
      return <TileCard card={card.content} icon="feedback" onClick={() => send({ didOpen: "roadmap" })} />;
    case "healthData":
      return <NoticeCard card={card.content} icon="health" onClick={() => send({ didOpen: "health" })} />;
    case "addWeight":
      return <AddWeightCard card={card.content} inRow={wide && card.sixths[2] === 2} />;
    case "goalWeight":
      return <GoalWeightCard card={card.content} />;
    case "badges":
      return <BadgesCard card={card.content} />;
    case "fastingChart":
      return <DayBarsChartCard kind="fasting" card={card.content} height={200} onTable={onTable} />;
    case "eatingChart":
      return <DayBarsChartCard kind="eating" card={card.content} height={wide ? 200 : 160} onTable={onTable} />;
    case "weightChart":
      return <WeightChartCard card={card.content} height={wide ? 224 : 176} onTable={onTable} />;
    case "weightFastingChart":
      return <WeightFastingChartCard card={card.content} height={wide ? 236 : 216} onTable={onTable} />;
    case "trend":
      return <TrendsCard card={card.content} />;
    case "timeRange":
      return null;
  }
}
