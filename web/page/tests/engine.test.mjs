// SPDX-License-Identifier: MIT
// The page on the engine itself: what a person does, and that it is there after whatever happens.
import assert from "node:assert/strict";
import { mkdtempSync, readdirSync, readFileSync, rmSync, statSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { after, before, test } from "node:test";
import { browserName, desktop, insecureHost, onEngine, openPage, startBrowser, startServer, textOf, waitForText } from "./page.mjs";

const kills = Number(process.env.MIVO_KILLS ?? 10); // more of them by hand
const folder = mkdtempSync(join(tmpdir(), "mivo-page-"));
let server;
let browser;
before(async () => {
  server = await startServer({ folder: onEngine });
  browser = await startBrowser();
});
after(async () => {
  await browser?.close();
  await server?.stop();
  rmSync(folder, { recursive: true, force: true });
});

const tab = (place) => `.side-tabs .tab:nth-child(${place})`;
const [fasting, statistics, settings] = [1, 2, 3].map(tab);

async function click(page, selector) {
  const element = await page.waitForSelector(selector, { visible: true });
  await element.evaluate((found) => found.scrollIntoView({ block: "center" }));
  await element.click();
}

async function clickText(page, within, text) {
  const element = await page.waitForSelector(`::-p-xpath(//*[contains(concat(" ", @class, " "), " ${within} ")]//button[contains(., "${text}")])`, { visible: true });
  await element.click();
}

async function type(page, selector, text) {
  await click(page, selector);
  await page.keyboard.down("Control");
  await page.keyboard.press("A");
  await page.keyboard.up("Control");
  await page.keyboard.type(text);
}

const countOf = (page, selector) => page.$$eval(selector, (found) => found.length);
const waitForCount = (page, selector, count) =>
  page.waitForFunction((wanted, expected) => document.querySelectorAll(wanted).length === expected, {}, selector, count);

/// Closes what is open, and waits for the browser's own history to have heard of it.
async function goBack(page) {
  await page.keyboard.press("Escape");
  await page.waitForFunction(() => !document.querySelector(".pushed, dialog") && history.state === null);
}

/// All weights, as they are listed.
async function weights(page) {
  await click(page, statistics);
  await clickText(page, "statistics", "All weights");
  await page.waitForSelector(".weight-row");
  const listed = await page.$$eval(".weight-row > .text-body-strong", (rows) => rows.map((row) => row.textContent));
  await goBack(page);
  return listed;
}

test("a person's day", async (context) => {
  const visitor = await browser.createBrowserContext({ downloadBehavior: { policy: "allow", downloadPath: folder } });
  const page = await openPage(visitor, server.url, { viewport: desktop });
  let hasFailed = false;
  const step = (name, drive) =>
    context.test(name, { skip: hasFailed }, async () => {
      hasFailed = true;
      await drive();
      assert.deepEqual(page.complaints, []);
      hasFailed = false;
    });

  await step("a fast is begun, and moved back", async () => {
    await beginYesterday(page);
  });
  await step("it is ended, and is in the history", async () => {
    await click(page, ".fast-card .action.of-large");
    await waitForText(page, "Fast ended");
    await waitForCount(page, ".row-face", 1);
    assert.match(await textOf(page, ".row-face > .heard"), /24h [01]m/);
  });
  await step("a note is written, taken back and written again", async () => {
    for (let time = 0; time < 2; ++time) {
      await click(page, ".row-face");
      await type(page, "dialog[open] textarea", "after a <b>long</b> walk");
      await click(page, "dialog[open] .sheet-buttons .action");
      await page.waitForFunction(() => !document.querySelector("dialog"));
      assert.equal(await textOf(page, ".row-note"), "after a <b>long</b> walk");
      if (time > 0) continue;
      await click(page, ".message button");
      await page.waitForFunction(() => !document.querySelector(".row-note"));
    }
  });
  await step("a weight is added, in the unit that was chosen", async () => {
    await click(page, settings);
    await clickText(page, "settings", "Weight unit");
    await clickText(page, "sheet-content", "Kilograms");
    await page.waitForFunction(() => !document.querySelector("dialog"));
    await click(page, statistics);
    await type(page, ".add-weight input", "81.4");
    await click(page, ".add-weight .entry .action");
    await waitForText(page, "Weight saved");
    assert.deepEqual(await weights(page), ["81.4 kg"]);
  });
  await step("the range is switched", async () => {
    await click(page, ".range-row label:nth-child(2)");
    await page.waitForFunction(() => document.querySelectorAll(".range-row input")[1].checked);
    await click(page, ".range-row label:nth-child(1)");
    await page.waitForFunction(() => document.querySelectorAll(".range-row input")[0].checked);
  });
  await step("a bar is selected", async () => {
    await page.waitForSelector(".of-fastingChart .bars path");
    await page.focus(".of-fastingChart .scroller");
    await page.keyboard.press("End");
    await page.waitForSelector(".of-fastingChart .popup");
    await page.keyboard.press("Escape");
    await page.waitForFunction(() => !document.querySelector(".popup"));
  });
  await step("a file is imported", async () => {
    const file = join(folder, "fasts.csv");
    writeFileSync(file, "start,end\n2026-01-02 20:00,2026-01-03 12:00\n2026-01-03 20:00,2026-01-04 13:00\n2026-01-05 20:00,nonsense\n");
    await click(page, settings);
    await clickText(page, "settings", "Import");
    const [chooser] = await Promise.all([page.waitForFileChooser(), clickText(page, "sheet-buttons", "Choose")]);
    await chooser.accept([file]);
    await waitForText(page, "fasts.csv");
    await click(page, "dialog[open] .sheet-buttons .action");
    await page.waitForFunction(() => !document.querySelector("dialog"));
    await click(page, fasting);
    await waitForCount(page, ".row-face", 3);
  });
  await step("all of it is exported, and so is the database", async () => {
    await click(page, settings);
    for (const line of ["first", "last"]) {
      await clickText(page, "settings", "Export");
      await click(page, `dialog[open] .sheet-line:${line}-child`);
    }
    const wanted = (name) => /\.(json|sqlite)$/.test(name) && statSync(join(folder, name)).size > 0; // Firefox takes the name first
    for (let tries = 0; tries < 100 && readdirSync(folder).filter(wanted).length < 2; ++tries) await new Promise((passed) => setTimeout(passed, 50));
    const [exported, database] = [".json", ".sqlite"].map((end) => readFileSync(join(folder, readdirSync(folder).find((name) => name.endsWith(end)))));
    const { fasts, weights: exportedWeights } = JSON.parse(exported.toString());
    assert.equal(fasts.length, 3);
    assert.deepEqual(exportedWeights.map(({ weightInKg }) => weightInKg), [81.4]);
    assert.equal(database.subarray(0, 15).toString(), "SQLite format 3");
    await goBack(page);
  });
  await step("without the server, and opened anew, everything is still there", async () => {
    await page.evaluate(async () => (await navigator.serviceWorker.ready).active);
    await page.reload();
    await page.waitForSelector(".window");
    await server.stop();
    try {
      await page.reload();
      await page.waitForSelector(".window");
      await click(page, fasting);
      await waitForCount(page, ".row-face", 3);
      assert.equal(await textOf(page, ".row-note"), "after a <b>long</b> walk");
      assert.deepEqual(await weights(page), ["81.4 kg"]);
    } finally {
      server = await startServer({ folder: onEngine, port: server.port });
    }
  });
  await step("a second tab takes over with all that there is", async () => {
    const second = await openPage(visitor, server.url, { viewport: desktop });
    await waitForText(second, "Mivo is open in another tab");
    await second.click(".alone .action");
    await second.waitForSelector(".window");
    await waitForText(page, "Mivo is open in another tab");
    await click(second, fasting);
    await waitForCount(second, ".row-face", 3);
    await second.close();
  });
  await visitor.close();
});

const fasts = (page) => page.evaluate(() => Number(document.querySelector(".list-row")?.getAttribute("aria-setsize") ?? 0));

/// Adds a fast; the list says so once it is on disk.
async function addFast(page) {
  const before = await fasts(page);
  await click(page, ".history-title .action");
  await click(page, "dialog[open] .sheet-buttons .action");
  await page.waitForFunction((count) => Number(document.querySelector(".list-row")?.getAttribute("aria-setsize")) > count, {}, before);
}

/// Begins a fast, and then moves its start a day back.
async function beginYesterday(page) {
  await click(page, fasting);
  await click(page, ".fast-card .action.data");
  await page.waitForSelector("[role=timer]");
  await click(page, "button.fact-tile");
  await page.waitForSelector("dialog[open] .wheels");
  await page.focus(".wheel.of-days");
  await page.keyboard.press("ArrowUp");
  await click(page, "dialog[open] .sheet-buttons .action");
  await page.waitForFunction(() => document.querySelector("[role=timer]").textContent.startsWith("24:0"));
}

// Firefox without a screen has nobody to tell.
test("a goal that is reached is told once", { skip: browserName === "firefox" }, async () => {
  const visitor = await browser.createBrowserContext();
  await visitor.overridePermissions(server.url, ["notifications"]);
  const page = await openPage(visitor, server.url, { viewport: desktop });
  const told = () => page.evaluate(async () => (await (await navigator.serviceWorker.ready).getNotifications()).map(({ title }) => title));
  await beginYesterday(page);
  await click(page, settings);
  await clickText(page, "settings", "Reminders");
  await click(page, ".pushed [role=switch]");
  await page.waitForFunction(async () => (await (await navigator.serviceWorker.ready).getNotifications()).length > 0);
  assert.deepEqual(await told(), ["Goal reached"]);
  await page.evaluate(async () => (await (await navigator.serviceWorker.ready).getNotifications()).forEach((notification) => notification.close()));
  await page.reload();
  await click(page, settings);
  await clickText(page, "settings", "Reminders");
  await page.waitForSelector(".pushed [role=switch][aria-checked=true]");
  assert.deepEqual(await told(), []);
  await visitor.close();
});

test("a sample ends today, and the next weight begins with its newest", async () => {
  const visitor = await browser.createBrowserContext();
  const page = await openPage(visitor, `${server.url}?sample`, { viewport: desktop });
  const begun = await page.$eval(".add-weight input", (field) => field.value);
  assert.equal(begun, (await weights(page))[0]); // in stones and pounds the field has the units too
  await click(page, fasting);
  await page.waitForSelector("[role=timer]");
  const hours = (await textOf(page, "[role=timer]")).split(":")[0];
  assert.ok(Number(hours) < 24, `the last fast ended ${hours} hours ago`);
  assert.deepEqual(page.complaints, []);
  await visitor.close();
});

test("it speaks the browser's language", async () => {
  const german = await startBrowser({ language: "de-DE" });
  const page = await openPage(german, server.url, { viewport: desktop });
  await waitForText(page, "Einstellungen");
  assert.equal(await page.$eval(":root", (root) => root.lang), "de-DE");
  assert.deepEqual(page.complaints, []);
  await german.close();
});

test("without HTTPS it says why it keeps nothing", async () => {
  const page = await openPage(browser, server.url.replace("localhost", insecureHost));
  await waitForText(page, "HTTPS");
  assert.equal(await page.$(".window"), null);
});

test("what was confirmed is there after the browser was killed", async () => {
  const userDataDir = join(folder, "profile");
  let [asked, confirmed] = [0, 0];
  for (let kill = 0; kill <= kills; ++kill) {
    const killed = await startBrowser({ userDataDir });
    const page = await openPage(killed, server.url, { viewport: desktop });
    await click(page, fasting);
    await page.waitForSelector(".history");
    if (confirmed > 0) await page.waitForSelector(".list-row");
    const there = await fasts(page);
    assert.ok(confirmed <= there && there <= asked, `${there} fasts are there after ${kill} kills; ${asked} were added, and ${confirmed} confirmed`);
    asked = confirmed = there;
    if (kill === kills) {
      assert.ok(confirmed >= kills);
      await killed.close();
      break;
    }
    const recording = (async () => {
      for (;;) {
        ++asked;
        await addFast(page);
        ++confirmed;
      }
    })().catch(() => {}); // the browser is gone
    await new Promise((passed) => setTimeout(passed, 1000 + 137 * kill));
    killed.process().kill("SIGKILL");
    await recording;
  }
});
