// SPDX-License-Identifier: MIT
declare const ICON_FILE: string;

/// An icon of the app; `turns` where it points along the reading direction.
export function Icon({ name, size = 24, turns = false }: { name: string; size?: number; turns?: boolean }) {
  return (
    <svg class={turns ? "icon turns" : "icon"} width={size} height={size} aria-hidden="true">
      <use href={`${ICON_FILE}#${name}`} />
    </svg>
  );
}

export function Swatch({ accent }: { accent: string }) {
  return <span class="swatch" data-accent={accent} />;
}

export function IconTile({ name, caution = false }: { name: string; caution?: boolean }) {
  return (
    <span class={caution ? "tile caution" : "tile"}>
      <Icon name={name} size={22} />
    </span>
  );
}

/// What the user may want to look at, behind the triangle.
export function CautionLine({ text }: { text: string }) {
  if (text === "") return null;
  return (
    <p class="caution-line text-label">
      <Icon name="warning" size={16} />
      <span>{text}</span>
    </p>
  );
}
