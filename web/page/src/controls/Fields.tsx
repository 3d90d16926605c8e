// SPDX-License-Identifier: MIT
import { useId, useLayoutEffect, useRef } from "preact/hooks";
import { usePage } from "../engine/Source";
import { IconButton } from "./Buttons";

/// What is wrong, in a sentence; it is read out when it comes.
export function Problem({ text, id, centred = false }: { text: string; id?: string; centred?: boolean }) {
  return (
    <p class={centred ? "problem text-caption centred" : "problem text-caption"} role="alert" id={id} hidden={text === ""}>
      {text}
    </p>
  );
}

interface TextFieldProps {
  name: string;
  text: string;
  onType: (text: string) => void;
  onAccept?: () => void;
  problem?: string;
  placeholder?: string;
  unit?: string;
  keyboard?: "decimal" | "email";
  focus?: boolean;
}

/// A line to type in. What is typed goes to whoever keeps it, and stands here meanwhile.
export function TextField(props: TextFieldProps) {
  const { name, text, onType, onAccept, problem = "", placeholder = "", unit = "", keyboard, focus = false } = props;
  const input = useKeptText<HTMLInputElement>(text);
  const described = useId();
  useLayoutEffect(() => {
    if (focus) input.current?.select();
  }, [focus]);
  return (
    <>
      <label class="field text-body" data-problem={problem !== ""}>
        <input
          ref={input}
          aria-label={name}
          aria-invalid={problem !== ""}
          aria-describedby={problem !== "" ? described : undefined}
          placeholder={placeholder}
          inputMode={keyboard}
          autocomplete="off"
          onInput={(event) => onType(event.currentTarget.value)}
          onKeyDown={(event) => event.key === "Enter" && onAccept?.()}
        />
        {unit !== "" && <span class="secondary">{unit}</span>}
      </label>
      <Problem text={problem} id={described} />
    </>
  );
}

interface NumberFieldProps {
  name: string;
  text: string;
  unit: string;
  problem: string;
  onType: (text: string) => void;
  onLess: () => void;
  onMore: () => void;
  onAccept: () => void;
}

/// A weight between minus and plus, which can be typed too.
export function NumberField({ name, text, unit, problem, onType, onLess, onMore, onAccept }: NumberFieldProps) {
  const words = usePage("words");
  const input = useKeptText<HTMLInputElement>(text);
  return (
    <div class="number-field" data-problem={problem !== ""}>
      <IconButton icon="minus" text={words?.less ?? ""} onClick={onLess} size={20} repeats />
      <label dir="ltr">
        <input
          ref={input}
          class="text-number-small"
          aria-label={name}
          aria-invalid={problem !== ""}
          inputMode="decimal"
          autocomplete="off"
          size={Math.max(1, text.length)}
          onFocus={(event) => event.currentTarget.select()}
          onInput={(event) => onType(event.currentTarget.value)}
          onKeyDown={(event) => event.key === "Enter" && onAccept()}
        />
        {unit !== "" && <span class="text-body-strong">{unit}</span>}
      </label>
      <IconButton icon="plus" text={words?.more ?? ""} onClick={onMore} size={20} repeats />
    </div>
  );
}

interface TextAreaProps {
  name: string;
  text: string;
  problem?: string;
  placeholder?: string;
  rows?: number;
  onType: (text: string) => void;
}

export function TextArea({ name, text, problem = "", placeholder = "", rows = 1, onType }: TextAreaProps) {
  const area = useKeptText<HTMLTextAreaElement>(text);
  return (
    <>
      <textarea
        ref={area}
        class="area text-body"
        rows={rows}
        dir="auto"
        aria-label={name}
        aria-invalid={problem !== ""}
        placeholder={placeholder}
        onInput={(event) => onType(event.currentTarget.value)}
      />
      <Problem text={problem} />
    </>
  );
}

// The engine answers each key a little later, and who types on is further by then: what was typed since the field got the
// keys is no news to it.
function useKeptText<Field extends HTMLInputElement | HTMLTextAreaElement>(text: string) {
  const field = useRef<Field>(null);
  const typed = useRef(new Set<string>());
  useLayoutEffect(() => {
    const shown = field.current;
    if (!shown || shown.value === text) return;
    if (document.activeElement !== shown || !typed.current.has(text)) shown.value = text;
  }, [text]);
  useLayoutEffect(() => {
    const shown = field.current;
    const remember = () => typed.current.add(shown!.value);
    const forget = () => typed.current.clear();
    shown?.addEventListener("beforeinput", remember);
    shown?.addEventListener("focus", forget);
    shown?.addEventListener("input", remember);
  }, []);
  return field;
}
