// SPDX-License-Identifier: MIT
import { useEffect, useState } from "preact/hooks";
import { ActionButton } from "../controls/Buttons";
import { ListGroup } from "../controls/Rows";
import { usePage } from "../engine/Source";

interface InstallPrompt extends Event {
  prompt(): Promise<unknown>;
}

let installPrompt: InstallPrompt | null = null;
addEventListener("beforeinstallprompt", (event) => {
  event.preventDefault();
  installPrompt = event as InstallPrompt;
});

/// Where the data is, whether the browser may delete it, and what helps against that.
export function StorageGroup() {
  const browser = usePage("browser");
  const [isKept, setIsKept] = useState<boolean | null>(null);
  const [isRefused, setRefused] = useState(false);
  useEffect(() => void navigator.storage.persisted().then(setIsKept), []);
  if (!browser || isKept === null) return null;
  const ask = async () => {
    const agreed = await navigator.storage.persist();
    setIsKept(agreed);
    setRefused(!agreed);
  };
  const install = installPrompt;
  return (
    <ListGroup title={browser.storage}>
      <div class="storage">
        <p class="text-body" role="status">
          {isKept ? browser.isKept : isRefused ? browser.isNotKept : browser.mayBeDeleted}
        </p>
        {!isKept && <ActionButton kind="secondary" text={browser.keep} onClick={() => void ask()} />}
        {install && <ActionButton kind="secondary" text={browser.install} onClick={() => void install.prompt()} />}
      </div>
    </ListGroup>
  );
}
