// SPDX-License-Identifier: MIT

interface Run {
  text: string;
  isUnit: boolean;
}

// What the digits of a number may have between them.
const numbers = /[\p{Nd}][\p{Nd}.,:'’٫٬\u00a0\u202f]*[\p{Nd}]|\p{Nd}|[+\u2212–-](?=\p{Nd})/gu;

function runsOf(text: string): Run[] {
  const runs: Run[] = [];
  let from = 0;
  const addUnit = (unit: string) => {
    const bare = unit.trim();
    if (bare !== "") runs.push({ text: bare, isUnit: /\p{L}|\p{S}/u.test(bare) });
  };
  for (const match of text.matchAll(numbers)) {
    addUnit(text.slice(from, match.index));
    const last = runs.at(-1);
    if (last && !last.isUnit) last.text += match[0];
    else runs.push({ text: match[0], isUnit: false });
    from = match.index + match[0].length;
  }
  addUnit(text.slice(from));
  return runs;
}

/// A finished text of numbers and units: digits large, letters smaller, all on one baseline. It reads from the left in
/// every language, and is heard as the text that it is. Even digits are all of one width, for what changes in place.
export function NumberText({ text, style, even = false }: { text: string; style: string; even?: boolean }) {
  const classOf = (run: Run, place: number) => {
    if (run.isUnit) return [...run.text].length === 1 ? "unit letter" : "unit word";
    return place > 0 ? "next" : undefined;
  };
  return (
    <span class={`number text-${style}${even ? " even" : ""}`} dir="ltr">
      <span aria-hidden="true">
        {runsOf(text).map((run, place) => (
          <span class={classOf(run, place)}>{run.text}</span>
        ))}
      </span>
      <span class="heard">{text}</span>
    </span>
  );
}
