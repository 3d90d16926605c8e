// SPDX-License-Identifier: MIT
// The statistics tab: a column of cards that scrolls; on wide windows rows of cards.
import type { CardKind, NoticeCard as Notice, ShownCard, TimeRangeCard } from "mivo";
import type { ComponentChild } from "preact";
import { useEffect, useRef, useState } from "preact/hooks";
import { SegmentedControl } from "../controls/Rows";
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
  page?: "statistics" | "printedStatistics";
  wide: boolean;
  onTable: OpenTable;
}

export function StatisticsPage({ page: name = "statistics", wide, onTable }: StatisticsPageProps) {
  const page = usePage(name);
  const words = usePage("words");
  const send = useSend();
  const picker = useRef<HTMLDivElement>(null);
  const sticks = useGoneUnderTheTop(picker);
  const range = page?.cards.map(timeRangeOf).find((card) => card !== null);
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
          const picked = timeRangeOf(card);
          if (picked && wide) return null;
          const [, ofTwo = 6, ofThree = 6] = card.sixths;
          return (
            <div key={card.kind} class={`slot of-${card.kind}`} style={{ "--of-two": ofTwo, "--of-three": ofThree }}>
              {picked ? (
                <div class="range-picker">
                  <h2 class="text-section">{picked.title}</h2>
                  <p class="text-label secondary">{picked.prompt}</p>
                  <div ref={picker}>
                    <SegmentedControl name={picked.title} options={picked.options} chosen={picked.selectedIndex} onChoose={choose} />
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

const timeRangeOf = ({ content }: ShownCard): TimeRangeCard | null => ("TimeRangeCard" in content ? content.TimeRangeCard : null);

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
      (entries) => {
        const { intersectionRatio, boundingClientRect } = entries.at(-1)!;
        setIsGone(intersectionRatio < 1 && boundingClientRect.height > 0); // it has no height while another page is open
      },
      { rootMargin: "-8px 0px 1000000px 0px", threshold: 1 }, // all that is below counts as seen, however far a jump goes
    );
    observer.observe(shown);
    return () => observer.disconnect();
  }, [watched]);
  return isGone;
}

function CardOfKind({ card, wide, onTable }: { card: ShownCard; wide: boolean; onTable: OpenTable }): ComponentChild {
  const { kind, content } = card;
  if ("NoticeCard" in content) return <NoticeOfKind kind={kind} card={content.NoticeCard} inRow={wide && card.sixths[2] === 2} />;
  if ("SummaryCard" in content) return <SummaryCard card={content.SummaryCard} wide={wide} />;
  if ("GoalWeightCard" in content) return <GoalWeightCard card={content.GoalWeightCard} />;
  if ("BadgesCard" in content) return <BadgesCard card={content.BadgesCard} />;
  if ("DayBarsCard" in content) {
    const bars = kind === "eatingChart" ? "eating" : "fasting";
    return <DayBarsChartCard kind={bars} card={content.DayBarsCard} height={wide || bars === "fasting" ? 200 : 160} onTable={onTable} />;
  }
  if ("WeightChartCard" in content) return <WeightChartCard card={content.WeightChartCard} height={wide ? 224 : 176} onTable={onTable} />;
  if ("WeightFastingChartCard" in content)
    return <WeightFastingChartCard card={content.WeightFastingChartCard} height={wide ? 236 : 216} onTable={onTable} />;
  if ("TrendsCard" in content) return <TrendsCard card={content.TrendsCard} />;
  return null; // the time range has a place of its own
}

function NoticeOfKind({ kind, card, inRow }: { kind: CardKind; card: Notice; inRow: boolean }): ComponentChild {
  const send = useSend();
  switch (kind) {
    case "tip":
      return <TipCard card={card} />;
    case "start":
      return <StartCard card={card} />;
    case "configure":
      return <ConfigureCard card={card} />;
    case "overlappingFasts":
      return <NoticeCard card={card} icon="warning" caution onClick={() => send({ didOpen: "overlaps" })} />;
    case "donation":
      return <TileCard card={card} icon="heart" onClick={() => send({ didOpen: "donations" })} />;
    case "roadmap":
      return <TileCard card={card} icon="feedback" onClick={() => send({ didOpen: "roadmap" })} />;
    case "healthData":
      return <NoticeCard card={card} icon="health" onClick={() => send({ didOpen: "health" })} />;
    case "addWeight":
      return <AddWeightCard card={card} inRow={inRow} />;
    default:
      return null;
  }
}
