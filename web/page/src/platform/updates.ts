// SPDX-License-Identifier: MIT
// Versions of the page. A new one waits until it is asked for: nothing is swapped under who uses the old one.
import { registerServiceWorker } from "./scripts";

const looksEvery = 60 * 60 * 1000;

/// `waits` is called when a new version is there. Restarting with it is refused while other tabs use the old one.
export function followVersions(waits: () => void): void {
  if (!("serviceWorker" in navigator)) return;
  void registerServiceWorker().then((registration) => {
    const look = () => {
      if (registration.waiting && navigator.serviceWorker.controller) waits();
    };
    look();
    registration.addEventListener("updatefound", () => registration.installing?.addEventListener("statechange", look));
    setInterval(() => void registration.update().catch(() => {}), looksEvery); // offline it stays as it is
  });
}

/// Whether it restarts: not while other tabs are open.
export async function restartWithNewVersion(): Promise<boolean> {
  const waiting = (await navigator.serviceWorker.getRegistration())?.waiting;
  if (!waiting) return false;
  const { port1, port2 } = new MessageChannel();
  const answer = new Promise<boolean>((resolve) => (port1.onmessage = ({ data }) => resolve(data as boolean)));
  navigator.serviceWorker.addEventListener("controllerchange", () => location.reload());
  waiting.postMessage("activate", [port2]);
  return answer;
}
