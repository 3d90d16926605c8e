// SPDX-License-Identifier: MIT
import type { ComponentChildren } from "preact";
import { useId } from "preact/hooks";
import { Icon, Swatch } from "./Icon";

/// Rows in one card, with a name above them and a note below.
export function ListGroup({ title = "", note = "", children }: { title?: string; note?: string; children: ComponentChildren }) {
  return (
    <section class="list-group">
      {title !== "" && <h2 class="text-label secondary">{title}</h2>}
      <div class="card rows">{children}</div>
      {note !== "" && <p class="text-label secondary">{note}</p>}
    </section>
  );
}

interface ValueRowProps {
  text: string;
  onClick: () => void;
  value?: string;
  icon?: string;
  disabled?: boolean;
  capitalized?: boolean;
}

/// A row that says a value and leads to where it is changed.
export function ValueRow({ text, onClick, value = "", icon, disabled = false, capitalized = false }: ValueRowProps) {
  if (text === "") return null;
  return (
    <button type="button" class="row text-body" disabled={disabled} onClick={onClick}>
      {icon && <Icon name={icon} size={22} />}
      <span class="row-words">
        <span>{text}</span>
        {value !== "" && <span class={capitalized ? "secondary row-value capitalized" : "secondary row-value"}>{value}</span>}
      </span>
      <Icon name="chevron" size={20} turns />
    </button>
  );
}

interface SwitchRowProps {
  text: string;
  on: boolean;
  onClick: () => void;
  icon?: string;
  accent?: string;
  detail?: string;
}

export function SwitchRow({ text, on, onClick, icon, accent, detail = "" }: SwitchRowProps) {
  return (
    <button type="button" class="row text-body" role="switch" aria-checked={on} onClick={onClick}>
      {icon && <Icon name={icon} size={22} />}
      {accent && <Swatch accent={accent} />}
      <span class="row-words">
        <span>
          {text}
          {detail !== "" && <span class="text-label secondary row-detail">{detail}</span>}
        </span>
      </span>
      <span class="switch" />
    </button>
  );
}

/// A row whose control stands at its trailing side, or below where both do not fit.
export function ControlRow({ text, icon, children }: { text: string; icon?: string; children: ComponentChildren }) {
  return (
    <div class="row control text-body">
      {icon && <Icon name={icon} size={22} />}
      <span class="row-words">{text}</span>
      {children}
    </div>
  );
}

export function FactRow({ title, value }: { title: string; value: string }) {
  return (
    <div class="row fact text-body">
      <span class="row-words">
        <span>{title}</span>
        <span class="secondary row-value">{value}</span>
      </span>
    </div>
  );
}

interface ChoiceRowProps {
  text: string;
  chosen?: boolean;
  capitalized?: boolean;
  onClick: () => void;
}

/// A line of a sheet: one of a few, or without `chosen` something to do.
export function ChoiceRow({ text, chosen, capitalized = false, onClick }: ChoiceRowProps) {
  const role = chosen === undefined ? {} : { role: "radio" as const, "aria-checked": chosen };
  return (
    <button type="button" class="row choice text-body" {...role} onClick={onClick}>
      <span class="row-words">
        <span class={capitalized ? "capitalized" : undefined}>{text}</span>
      </span>
      {chosen && <Icon name="check" size={20} />}
    </button>
  );
}

interface SegmentedControlProps {
  name: string;
  options: readonly string[];
  chosen: number;
  onChoose: (place: number) => void;
}

/// One choice of a few, side by side. Arrow keys move the choice: they are radio buttons.
export function SegmentedControl({ name, options, chosen, onChoose }: SegmentedControlProps) {
  const group = useId();
  return (
    <div class="segmented" role="radiogroup" aria-label={name} style={{ "--count": options.length, "--place": chosen }}>
      {options.map((option, place) => (
        <label class="text-button">
          <input type="radio" name={group} checked={place === chosen} onChange={() => onChoose(place)} />
          <span>{option}</span>
        </label>
      ))}
    </div>
  );
}

interface StepperProps {
  name: string;
  text: string;
  value: number;
  least: number;
  most: number;
  step: number;
  words: { less: string; more: string };
  onChange: (value: number) => void;
}

/// A number between minus and plus. The arrow keys change it too.
export function Stepper({ name, text, value, least, most, step, words, onChange }: StepperProps) {
  const change = (by: number) => onChange(Math.max(least, Math.min(most, value + by)));
  const keys: Record<string, number> = { ArrowUp: step, ArrowRight: step, ArrowDown: -step, ArrowLeft: -step };
  const onKeyDown = (event: KeyboardEvent) => {
    const by = keys[event.key];
    if (by === undefined) return;
    event.preventDefault();
    change(by);
  };
  const button = (icon: string, by: number, label: string, enabled: boolean) => (
    <button type="button" class="icon-button" tabIndex={-1} aria-label={label} disabled={!enabled} onClick={() => change(by)}>
      <Icon name={icon} size={20} />
    </button>
  );
  return (
    <span class="stepper">
      {button("minus", -step, words.less, value > least)}
      <span
        role="spinbutton"
        tabIndex={0}
        class="text-body-strong"
        aria-label={name}
        aria-valuenow={value}
        aria-valuemin={least}
        aria-valuemax={most}
        aria-valuetext={text}
        onKeyDown={onKeyDown}
      >
        {text}
      </span>
      {button("plus", step, words.more, value < most)}
    </span>
  );
}
