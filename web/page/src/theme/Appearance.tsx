// SPDX-License-Identifier: MIT
// What the settings and the system say about how everything looks, on the root element, where the styles read it.
import type { Appearance } from "mivo";
import { useEffect, useState } from "preact/hooks";
import { usePage } from "../engine/Source";

const systemDark = matchMedia("(prefers-color-scheme: dark)");

export function useIsDark(): boolean {
  const mode = usePage("appearance")?.mode ?? "system";
  const [ofSystem, setOfSystem] = useState(systemDark.matches);
  useEffect(() => {
    const follow = () => setOfSystem(systemDark.matches);
    systemDark.addEventListener("change", follow);
    return () => systemDark.removeEventListener("change", follow);
  }, []);
  return mode === "system" ? ofSystem : mode === "dark";
}

/// From these text sizes on, what stands beside each other stands below each other.
const stackedFrom = 1.3;
const oneColumnFrom = 1.6;

function apply({ mode, textScale, reducesMotion }: Appearance): void {
  const root = document.documentElement;
  root.dataset["appearance"] = mode;
  root.dataset["motion"] = reducesMotion ? "reduced" : "";
  root.style.fontSize = `${textScale * 100}%`;
  const whole = parseFloat(getComputedStyle(root).fontSize) / 16; // the browser's own size counts too
  root.dataset["scale"] = String(whole);
  root.dataset["text"] = whole >= oneColumnFrom ? "stacked one-column" : whole >= stackedFrom ? "stacked" : "";
}

/// Applied while the window is drawn, not after: what stands in it measures its texts.
export function useAppearance(): void {
  const appearance = usePage("appearance");
  const [applied] = useState<{ last?: Appearance }>({});
  if (!appearance || applied.last === appearance) return;
  applied.last = appearance;
  apply(appearance);
}
