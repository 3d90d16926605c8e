// SPDX-License-Identifier: MIT
import { useEffect, useState } from "preact/hooks";
import { ActionButton } from "../controls/Buttons";
import { usePage } from "../engine/Source";
import { followVersions, restartWithNewVersion } from "./updates";

/// That a new version is there, until it is asked for.
export function BrowserNotices() {
  const browser = usePage("browser");
  const [waits, setWaits] = useState(false);
  const [hasOthers, setHasOthers] = useState(false);
  useEffect(() => followVersions(() => setWaits(true)), []);
  if (!waits || !browser) return null;
  return (
    <div class="browser-notice" role="status">
      <p class="text-label">{hasOthers ? browser.closeOthers : browser.update}</p>
      <ActionButton kind="secondary" text={browser.restart} onClick={() => void restartWithNewVersion().then((restarts) => setHasOthers(!restarts))} />
    </div>
  );
}
