// SPDX-License-Identifier: MIT
// Every screen, on the phone and on the desktop, light and dark, as axe sees it.
import assert from "node:assert/strict";
import { createRequire } from "node:module";
import { readFileSync } from "node:fs";
import { after, before, test } from "node:test";
import { desktop, openPage, phone, startBrowser, startServer } from "./page.mjs";

const axe = readFileSync(createRequire(import.meta.url).resolve("axe-core/axe.min.js"), "utf8");

const screens = [
  ["fasting"],
  ["statistics"],
  ["settings"],
  ...["badges", "roadmap", "weights", "cards", "reminders", "about", "backups"].map((page) => ["settings", page]),
  ...["editFast", "severalFasts", "fastGoal", "fastStart", "fastMenu", "months"].map((sheet) => ["fasting", "", sheet]),
  ...["donations", "overlaps", "goalWeight", "editWeight", "date", "feedback", "import", "export", "health", "restore", "weightUnit", "firstWeekday", "eatingWindow"].map((sheet) => ["statistics", "", sheet]),
];

let browser;
before(async () => (browser = await startBrowser()));
after(() => browser?.close());

for (const [name, viewport, scheme] of [
  ["on a light phone", phone, "light"],
  ["on a dark desktop", desktop, "dark"],
])
  test(`axe finds nothing ${name}`, async (context) => {
    let shown;
    const server = await startServer({
      change: (recording) => {
        const [tab, page = "", sheet = ""] = shown;
        recording.pages.screens = { tab, page, sheet };
        return recording;
      },
    });
    shown = screens[0];
    const page = await openPage(browser, server.url, { viewport, scheme });
    for (shown of screens)
      await context.test(shown.filter(Boolean).join(" "), async () => {
        await page.goto(server.url);
        await page.waitForSelector(shown[2] ? "dialog[open]" : ".page");
        await page.waitForNetworkIdle({ idleTime: 150 });
        const { violations } = await page.evaluate(`${axe}; axe.run()`);
        assert.deepEqual(
          violations.map(({ id, nodes }) => `${id}: ${nodes.map(({ html }) => html.slice(0, 200)).join(" | ")}`),
          [],
        );
        assert.deepEqual(page.complaints, []);
      });
    await page.close();
    await server.stop();
  });
