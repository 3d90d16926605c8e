// SPDX-License-Identifier: MIT
// What the user wants to be told of is told while the page lives, through the service worker: phones refuse a page's own.
import type { Source } from "../engine/Source";

export async function askToNotify(): Promise<boolean> {
  if (!("Notification" in window) || !("serviceWorker" in navigator)) return false;
  return (await Notification.requestPermission()) === "granted";
}

const longestTimer = 2 ** 31 - 1;

/// Waits for what is due next, and tells it once.
export function notifyWhatIsDue(source: Source): void {
  let timer = 0;
  const wait = () => {
    clearTimeout(timer);
    const next = source.read("reminder");
    if (!next || next.id === "") return;
    timer = window.setTimeout(() => void tell(), Math.min(longestTimer, Math.max(0, next.due * 1000 - Date.now())));
  };
  const tell = async () => {
    const next = source.read("reminder");
    if (!next || next.due * 1000 > Date.now()) return wait(); // a timer is early after a sleep, or was too short
    if (Notification.permission !== "granted") return;
    const registration = await navigator.serviceWorker.ready;
    await registration.showNotification(next.title, { body: next.sentence, tag: next.id, icon: "icon-192.png" });
    source.send({ didTellReminder: next.id });
  };
  if (!("Notification" in window) || !("serviceWorker" in navigator)) return;
  source.watch("reminder", wait);
  document.addEventListener("visibilitychange", wait);
  void source.load(["reminder"]).then(wait);
}
