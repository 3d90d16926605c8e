// SPDX-License-Identifier: MIT
import type { BadgeFigure, BadgesCard as Badges } from "mivo";
import { Badge } from "../controls/Badge";
import { CardHead, Progress, TappableCard } from "../controls/Card";
import { useSend } from "../engine/Source";

export function BadgesCard({ card }: { card: Badges }) {
  const send = useSend();
  return (
    <TappableCard
      text={`${card.title}: ${card.milestone.label}, ${card.streak.label}`}
      onClick={() => send({ didOpen: "badges" })}
      class="badges"
    >
      <CardHead title={card.title} chevron />
      <div class="badge-halves">
        <BadgeHalf shape="milestone" figure={card.milestone} />
        <BadgeHalf shape="streak" figure={card.streak} />
      </div>
    </TappableCard>
  );
}

function BadgeHalf({ shape, figure }: { shape: "milestone" | "streak"; figure: BadgeFigure }) {
  return (
    <div class="badge-half">
      <Badge shape={shape} threshold={figure.threshold} isEarned={figure.isEarned} number={figure.number} size={88} />
      <span class="text-body-strong">{figure.label}</span>
      <Progress fraction={figure.fraction} />
      <span class="text-label secondary">{figure.progress}</span>
    </div>
  );
}
