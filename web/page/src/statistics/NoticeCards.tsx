// SPDX-License-Identifier: MIT
// Cards that say something and offer at most one thing to do.
import type { NoticeCard as Notice } from "mivo";
import { ActionButton, IconButton } from "../controls/Buttons";
import { Card, TappableCard } from "../controls/Card";
import { Icon, IconTile } from "../controls/Icon";
import { usePage, useSend } from "../engine/Source";

export function TipCard({ card }: { card: Notice }) {
  const words = usePage("words");
  const send = useSend();
  return (
    <Card class="beside-tile tip">
      <IconTile name="bulb" />
      <div>
        <h2 class="text-body-strong">{card.title}</h2>
        <p class="text-body secondary">{card.text}</p>
      </div>
      <IconButton class="corner" icon="close" text={words?.close ?? ""} onClick={() => send("didDismissTip")} />
    </Card>
  );
}

interface NoticeCardProps {
  card: Notice;
  icon: string;
  caution?: boolean;
  onClick: () => void;
}

export function NoticeCard({ card, icon, caution = false, onClick }: NoticeCardProps) {
  return (
    <Card class="notice">
      <div class="beside-tile">
        <IconTile name={icon} caution={caution} />
        <div>
          <h2 class="text-headline">{card.title}</h2>
          <p class="text-body secondary">{card.text}</p>
        </div>
      </div>
      <ActionButton text={card.button} kind={caution ? "secondary" : "primary"} onClick={onClick} />
    </Card>
  );
}

/// A tile, a text and a chevron: donation and roadmap.
export function TileCard({ card, icon, onClick }: { card: Notice; icon: string; onClick: () => void }) {
  const text = card.text || card.button;
  return (
    <TappableCard text={text} onClick={onClick} class="beside-tile">
      <IconTile name={icon} />
      <p class="text-body" aria-hidden="true">
        {text}
      </p>
      <Icon name="chevron" size={20} turns />
    </TappableCard>
  );
}

/// Before the first fast.
export function StartCard({ card }: { card: Notice }) {
  const send = useSend();
  const start = () => {
    send("didTapFastingButton");
    send({ didOpen: "fasting" });
  };
  return (
    <Card class="start">
      <svg viewBox="0 0 96 96" width="96" height="96" aria-hidden="true">
        <circle class="rest" cx="48" cy="48" r="42" />
        <circle class="done" cx="48" cy="48" r="42" stroke-dasharray="53 264" transform="rotate(-90 48 48)" />
      </svg>
      <p class="text-headline">{card.text}</p>
      <ActionButton text={card.button} kind="data" icon="play" onClick={start} />
    </Card>
  );
}

/// Everything is switched off.
export function ConfigureCard({ card }: { card: Notice }) {
  const send = useSend();
  return (
    <Card class="configure">
      <p class="text-body secondary">{card.text}</p>
      <ActionButton text={card.button} kind="secondary" onClick={() => send({ didOpen: "cards" })} />
    </Card>
  );
}
