// SPDX-License-Identifier: MIT
import type { RoadmapItem } from "mivo";
import { useEffect, useState } from "preact/hooks";
import { ActionButton, Chip } from "../controls/Buttons";
import { Card } from "../controls/Card";
import { Problem } from "../controls/Fields";
import { Icon, IconTile } from "../controls/Icon";
import { PushedPage } from "../controls/PushedPage";
import { usePage, useSend } from "../engine/Source";

/// What may come: features with their votes, by state.
export function RoadmapPage() {
  const page = usePage("roadmap");
  const send = useSend();
  const isLate = useWaited(300); // what loads at once never shows that it loads
  if (!page) return null;
  const { notice } = page;
  return (
    <PushedPage title={page.title}>
      {page.filters.length > 0 && (
        <div class="chips" role="radiogroup" aria-label={page.title}>
          {page.filters.map(({ name, status, isChosen }) => (
            <Chip key={name} text={name} chosen={isChosen} onClick={() => send({ roadmap: { didTapStatus: status } })} />
          ))}
        </div>
      )}
      <Problem text={page.unsentVote} />
      {page.isLoading && isLate && [1, 2, 3, 4].map((place) => <div class="card loading" key={place} aria-hidden="true" />)}
      {notice.title !== "" && (
        <Card class="roadmap-notice">
          <IconTile name={notice.hasFailed ? "cloudOff" : "inbox"} />
          <h2 class="text-headline">{notice.title}</h2>
          {notice.text !== "" && <p class="text-body secondary">{notice.text}</p>}
          <ActionButton text={notice.button} onClick={() => send({ roadmap: "didTapTryAgain" })} />
        </Card>
      )}
      {page.items.map((item) => (
        <RoadmapCard key={item.id} item={item} onVote={() => send({ roadmap: { didTapVote: item.id } })} />
      ))}
      <ActionButton kind="secondary" text={page.footer} onClick={() => send({ didOpen: "feedback" })} />
    </PushedPage>
  );
}

function useWaited(milliseconds: number): boolean {
  const [hasPassed, setPassed] = useState(false);
  useEffect(() => {
    const timer = setTimeout(() => setPassed(true), milliseconds);
    return () => clearTimeout(timer);
  }, [milliseconds]);
  return hasPassed;
}

function RoadmapCard({ item, onVote }: { item: RoadmapItem; onVote: () => void }) {
  return (
    <Card class="roadmap-item">
      <div>
        <h2 class="text-headline">{item.title}</h2>
        {item.text !== "" && <p class="text-body secondary">{item.text}</p>}
        <p class="status text-caption secondary">
          <span class="status-mark" data-status={item.status} />
          {item.statusName}
        </p>
      </div>
      {item.hasVotes && (
        <button type="button" class="vote text-button" role="checkbox" aria-checked={item.isVoted} aria-label={item.spokenVote} disabled={!item.isOpen} onClick={onVote}>
          <Icon name="up" size={20} />
          <span>{item.count}</span>
        </button>
      )}
    </Card>
  );
}
