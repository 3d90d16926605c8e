// SPDX-License-Identifier: MIT
import type { JSX } from "preact";
import { useEffect, useRef } from "preact/hooks";
import { Icon } from "./Icon";

export type ButtonKind = "primary" | "secondary" | "data" | "destructive" | "plain" | "field";

interface ActionButtonProps {
  text: string;
  onClick: () => void;
  kind?: ButtonKind;
  size?: "usual" | "sheet" | "large";
  icon?: string;
  disabled?: boolean;
  pressed?: boolean;
  spoken?: string;
}

/// A button of ink, or of quiet fill, or in a data colour for the one that starts a fast. None without a text.
export function ActionButton(props: ActionButtonProps) {
  const { text, onClick, kind = "primary", size = "usual", icon, disabled = false, pressed, spoken } = props;
  if (text === "") return null;
  return (
    <button
      type="button"
      class={`action ${kind} of-${size} ${size === "large" ? "text-button-large" : "text-button"}`}
      disabled={disabled}
      aria-pressed={pressed}
      aria-label={spoken}
      onClick={onClick}
    >
      {icon && <Icon name={icon} />}
      <span>{text}</span>
    </button>
  );
}

interface IconButtonProps {
  icon: string;
  text: string;
  onClick: () => void;
  size?: number;
  turns?: boolean;
  repeats?: boolean;
  disabled?: boolean;
  class?: string;
}

const repeatDelay = 400;
const repeatInterval = 80;

/// An icon to tap, said as `text`. One that repeats goes on while it is held.
export function IconButton(props: IconButtonProps) {
  const { icon, text, onClick, size = 24, turns = false, repeats = false, disabled = false } = props;
  const timer = useRef(0);
  const act = useRef(onClick);
  act.current = onClick;
  const isHeld = useRef(false);
  const release = () => {
    clearTimeout(timer.current);
  };
  useEffect(() => release, []);
  const hold = () => {
    isHeld.current = false;
    const again = () => {
      isHeld.current = true;
      act.current();
      timer.current = window.setTimeout(again, repeatInterval);
    };
    timer.current = window.setTimeout(again, repeatDelay);
  };
  const held = repeats ? { onPointerDown: hold, onPointerUp: release, onPointerLeave: release, onPointerCancel: release } : {};
  return (
    <button
      type="button"
      class={`icon-button ${props.class ?? ""}`}
      aria-label={text}
      title={text}
      disabled={disabled}
      onClick={() => (isHeld.current ? (isHeld.current = false) : onClick())}
      {...held}
    >
      <Icon name={icon} size={size} turns={turns} />
    </button>
  );
}

/// Quiet text with an icon behind it that opens something.
export function QuietButton({ text, icon, onClick }: { text: string; icon: string; onClick: () => void }) {
  return (
    <button type="button" class="quiet text-label" onClick={onClick}>
      <span>{text}</span>
      <Icon name={icon} size={16} />
    </button>
  );
}

/// A value as a field that a tap changes.
export function FieldButton({ text, icon, onClick }: { text: string; icon: string; onClick: () => void }) {
  return (
    <button type="button" class="field-button text-body" onClick={onClick}>
      <span>{text}</span>
      <Icon name={icon} size={18} />
    </button>
  );
}

interface ChipProps {
  text: string;
  chosen: boolean;
  onClick: () => void;
}

/// One choice of a few that stand in a row and may wrap.
export function Chip({ text, chosen, onClick }: ChipProps) {
  return (
    <button type="button" class="chip text-label" role="radio" aria-checked={chosen} onClick={onClick}>
      <span>{text}</span>
    </button>
  );
}

export function Chips({ label, children }: { label: string; children: JSX.Element | (JSX.Element | JSX.Element[])[] | JSX.Element[] }) {
  return (
    <div class="chips" role="radiogroup" aria-label={label}>
      {children}
    </div>
  );
}
