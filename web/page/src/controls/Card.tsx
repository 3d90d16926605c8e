// SPDX-License-Identifier: MIT
import type { ComponentChildren } from "preact";
import { Icon, Swatch } from "./Icon";

interface CardProps {
  children: ComponentChildren;
  class?: string;
}

export function Card({ children, class: name = "" }: CardProps) {
  return <section class={`card ${name}`}>{children}</section>;
}

interface TappableCardProps extends CardProps {
  text: string;
  onClick: () => void;
}

/// A card that is tapped as a whole: its button lies over it, so that others may stand in it above that.
export function TappableCard({ text, onClick, children, class: name = "" }: TappableCardProps) {
  return (
    <section class={`card tappable ${name}`}>
      <button type="button" class="whole" aria-label={text} onClick={onClick} />
      {children}
    </section>
  );
}

interface CardHeadProps {
  title: string;
  detail?: string;
  accent?: string;
  chevron?: boolean;
}

/// A card's title with a label at its trailing side, which drops to the next line where both do not fit.
export function CardHead({ title, detail = "", accent, chevron = false }: CardHeadProps) {
  return (
    <header class="card-head">
      <h2 class="text-headline">
        {accent && <Swatch accent={accent} />}
        {title}
      </h2>
      {detail !== "" && <span class="text-label secondary">{detail}</span>}
      {chevron && <Icon name="chevron" size={20} turns />}
    </header>
  );
}

/// The last line of a card, which leads to more of what the card shows.
export function CardLink({ text, onClick }: { text: string; onClick: () => void }) {
  if (text === "") return null;
  return (
    <button type="button" class="card-link text-body" onClick={onClick}>
      <span>{text}</span>
      <Icon name="chevron" size={20} turns />
    </button>
  );
}

/// How far something has come: a track that is filled from the leading edge.
export function Progress({ fraction, name, class: given = "" }: { fraction: number; name?: string; class?: string }) {
  const shown = Math.max(0, Math.min(1, fraction));
  const role = name === undefined ? { "aria-hidden": true as const } : { role: "progressbar" as const, "aria-label": name, "aria-valuenow": Math.round(shown * 100) };
  return (
    <span class={`track ${given}`} {...role}>
      <span class="done" style={{ inlineSize: `${shown * 100}%` }} />
    </span>
  );
}
