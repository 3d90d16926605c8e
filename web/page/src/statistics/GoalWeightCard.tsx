// SPDX-License-Identifier: MIT
import type { GoalWeightCard as GoalWeight } from "mivo";
import { ActionButton } from "../controls/Buttons";
import { CardHead, CardLink, Progress, TappableCard } from "../controls/Card";
import { usePage, useSend } from "../engine/Source";
import { Figure } from "./SummaryCard";

/// How far the goal weight is, and when the trend reaches it. A tap changes the goal.
export function GoalWeightCard({ card }: { card: GoalWeight }) {
  const weights = usePage("weights");
  const send = useSend();
  const open = () => {
    send({ statistics: { goalWeightCardAction: "didOpenGoal" } });
    send({ didOpen: "goalWeight" });
  };
  const spoken = [card.title, card.remaining, card.current, card.goal].filter((fact) => fact !== "").join(", ");
  return (
    <TappableCard text={spoken} onClick={open} class="goal-weight">
      <CardHead title={card.title} detail={card.remaining} />
      {(card.current !== "" || card.goal !== "") && (
        <div class="figures-pair">
          {card.current !== "" && <Figure value={card.current} label={card.currentLabel} largest="number" />}
          {card.goal !== "" && <Figure value={card.goal} label={card.goalLabel} largest="number" trailing />}
        </div>
      )}
      <div class="way">
        {card.fraction !== null && (
          <div class="way-track" style={{ "--fraction": Math.max(0, Math.min(1, card.fraction)) }}>
            <Progress fraction={card.fraction} class="of-weight" />
            <span class="knob" />
          </div>
        )}
        {card.afterFigure !== "" && (
          <p class="text-label secondary">
            {card.trendFigure !== "" && <b>{card.trendFigure}</b>}
            {card.afterFigure}
          </p>
        )}
        <ActionButton text={card.button} kind="secondary" onClick={open} />
        <CardLink text={weights?.openLabel ?? ""} onClick={() => send({ didOpen: "weights" })} />
      </div>
    </TappableCard>
  );
}
