// SPDX-License-Identifier: MIT
import type * as Record from "mivo";
import { EmptyChart } from "../charts/ChartFrame";
import { DayBars } from "../charts/DayBars";
import { LineChart, Mark } from "../charts/LineChart";
import { Card, CardHead, CardLink } from "../controls/Card";
import { NumberText } from "../controls/NumberText";
import { usePage, useSend } from "../engine/Source";
import type { OpenTable } from "./StatisticsPage";

interface ChartCardProps<Content> {
  card: Content;
  height: number;
  onTable: OpenTable;
}

export function DayBarsChartCard({ kind, card, height, onTable }: ChartCardProps<Record.DayBarsCard> & { kind: "fasting" | "eating" }) {
  const chart = usePage(`${kind}Chart`);
  return (
    <Card class="day-bars">
      <CardHead title={card.title} detail={card.empty === "" ? (chart?.visibleDates ?? "") : ""} accent={kind} />
      {card.empty !== "" ? (
        <EmptyChart text={card.empty} />
      ) : (
        <DayBars kind={kind} title={card.title} height={height} onTable={() => onTable(`${kind}Table`, card.title)} />
      )}
    </Card>
  );
}

export function WeightChartCard({ card, height, onTable }: ChartCardProps<Record.WeightChartCard>) {
  const chart = usePage("weightChart");
  const weights = usePage("weights");
  const send = useSend();
  return (
    <Card class="line-chart">
      <CardHead title={card.title} detail={card.empty === "" ? (chart?.visibleDates ?? "") : ""} accent="weight" />
      {card.empty !== "" ? (
        <EmptyChart text={card.empty} />
      ) : (
        <>
          {card.averageLabel !== "" && (
            <p class="average">
              <NumberText text={chart?.average ?? ""} style="number" even />
              <span class="text-label secondary">{card.averageLabel}</span>
            </p>
          )}
          <LineChart kind="weight" title={card.title} height={height} onTable={() => onTable("weightTable", card.title)} />
        </>
      )}
      <CardLink text={weights?.openLabel ?? ""} onClick={() => send({ didOpen: "weights" })} />
    </Card>
  );
}

export function WeightFastingChartCard({ card, height, onTable }: ChartCardProps<Record.WeightFastingChartCard>) {
  const chart = usePage("weightFastingChart");
  return (
    <Card class="line-chart">
      <CardHead title={card.title} detail={card.empty === "" ? (chart?.visibleDates ?? "") : ""} />
      {card.empty !== "" ? (
        <EmptyChart text={card.empty} />
      ) : (
        <>
          <p class="legend text-caption secondary">
            {[card.weightLegend, card.fastingLegend].map((legend, line) => (
              <span>
                <svg width="12" height="12" viewBox="-6 -6 12 12" data-accent={line === 0 ? "weight" : "fasting"} aria-hidden="true">
                  <Mark x={0} y={0} line={line} radius={3} />
                </svg>
                {legend}
              </span>
            ))}
          </p>
          <LineChart kind="weightFasting" title={card.title} height={height} onTable={() => onTable("weightFastingTable", card.title)} />
        </>
      )}
    </Card>
  );
}
