// SPDX-License-Identifier: MIT
import type { BadgeFamilyPage } from "mivo";
import { Badge } from "../controls/Badge";
import { Card, CardHead, Progress, TappableCard } from "../controls/Card";
import { NumberText } from "../controls/NumberText";
import { PushedPage } from "../controls/PushedPage";
import { usePage, useSend } from "../engine/Source";

type Shape = "milestone" | "streak";

/// Both families of badges, and the way to each whole list.
export function BadgesPage() {
  const page = usePage("badges");
  const send = useSend();
  if (!page) return null;
  if (page.list === "milestones") return <BadgeListPage key="milestones" family={page.milestones} shape="milestone" />;
  if (page.list === "streaks") return <BadgeListPage key="streaks" family={page.streaks} shape="streak" />;
  return (
    <PushedPage title={page.title}>
      <FamilyCard family={page.milestones} shape="milestone" onClick={() => send({ didOpen: "milestones" })} />
      <FamilyCard family={page.streaks} shape="streak" onClick={() => send({ didOpen: "streaks" })} />
    </PushedPage>
  );
}

interface FamilyProps {
  family: BadgeFamilyPage;
  shape: Shape;
}

// The best one, how far the next is, and those around it.
function FamilyCard({ family, shape, onClick }: FamilyProps & { onClick: () => void }) {
  const { present } = family;
  return (
    <TappableCard text={family.spoken} onClick={onClick} class="badge-family">
      <CardHead title={family.title} detail={family.allLabel} chevron />
      <div class="badge-present">
        <Badge shape={shape} threshold={present.threshold} isEarned={present.isEarned} number={present.number} size={120} />
        <div>
          <NumberText text={family.count} style="number-large" />
          <p class="text-label secondary">{family.countLabel}</p>
          <Progress fraction={family.fraction} />
          <p class="text-label secondary">{family.remaining}</p>
        </div>
      </div>
      <div class="badges-around">
        {family.around.map((badge) => (
          <Badge key={badge.threshold} shape={shape} threshold={badge.threshold} isEarned={badge.isEarned} number={badge.number} size={56} />
        ))}
      </div>
    </TappableCard>
  );
}

function BadgeListPage({ family, shape }: FamilyProps) {
  return (
    <PushedPage title={family.title} wide>
      <div class="badge-count">
        <NumberText text={family.count} style="number-large" />
        <p class="text-label secondary">{family.remaining}</p>
      </div>
      <Card>
        <ul class="badge-grid">
          {family.all.map(({ threshold, isEarned, number, label }) => (
            <li key={threshold}>
              <Badge shape={shape} threshold={threshold} isEarned={isEarned} number={number} size={88} />
              <span class={isEarned ? "text-body-strong" : "text-body secondary"}>{label}</span>
            </li>
          ))}
        </ul>
      </Card>
    </PushedPage>
  );
}
