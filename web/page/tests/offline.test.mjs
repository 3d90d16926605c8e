// SPDX-License-Identifier: MIT
// What the page keeps of itself, and which tab has the data.
import assert from "node:assert/strict";
import { after, before, beforeEach, afterEach, test } from "node:test";
import { insecureHost, openPage, startBrowser, startServer, waitForText } from "./page.mjs";

let browser;
let server;
let context;
before(async () => (browser = await startBrowser()));
after(() => browser?.close());
// Each test is another visitor: nothing is kept from the one before.
beforeEach(async () => {
  server = await startServer();
  context = await browser.createBrowserContext();
});
afterEach(async () => {
  await context.close();
  await server.stop();
});

const isKept = (page) =>
  page.evaluate(async () => (await navigator.serviceWorker.ready).active !== null && (await caches.keys()).length === 1);

test("the page opens without the server that it came from", async () => {
  const page = await openPage(context, server.url);
  assert.ok(await isKept(page));
  // The recorded pages stand in for the engine's own files, which are kept.
  await page.evaluate(async () => (await caches.open((await caches.keys())[0])).add("recorded-three-weeks.json"));
  await page.reload();
  await page.waitForSelector(".window");
  await server.stop();
  await page.reload();
  await page.waitForSelector(".window");
  assert.equal(await page.$eval("h1", (title) => title.textContent), "Statistics");
});

test("a new version waits until it is asked for, and for other tabs to close", async () => {
  const page = await openPage(context, server.url);
  assert.ok(await isKept(page));
  await page.reload();
  await page.waitForSelector(".window");
  const [before] = await page.evaluate(() => caches.keys());
  server.replace["service-worker.js"] = (script) => script.replaceAll(before.slice("mivo-version-".length), "newer");
  await page.evaluate(async () => (await navigator.serviceWorker.ready).update());
  await waitForText(page, "A new version of Mivo is here.");
  assert.ok((await page.evaluate(() => caches.keys())).includes(before));

  const other = await openPage(context, server.url);
  await page.bringToFront();
  await page.click(".browser-notice .action");
  await waitForText(page, "Close the other tabs of Mivo first.");
  await other.close();
  await Promise.all([page.waitForNavigation(), page.click(".browser-notice .action")]);
  await page.waitForSelector(".window");
  assert.deepEqual(await page.evaluate(() => caches.keys()), ["mivo-version-newer"]);
});

test("where one file of a version is missing, none of it is kept", async () => {
  server.replace["service-worker.js"] = (script) => script.replace("manifest.webmanifest", "missing");
  const page = await openPage(context, server.url);
  await page.waitForFunction(async () => {
    const registration = await navigator.serviceWorker.getRegistration();
    return registration === undefined || (registration.installing === null && registration.active === null);
  });
  const kept = await page.evaluate(async () => Promise.all((await caches.keys()).map(async (name) => (await (await caches.open(name)).keys()).length)));
  assert.deepEqual(kept.filter((count) => count > 0), []);
});

test("a second tab says who has the data, and takes it over", async () => {
  const first = await openPage(context, server.url);
  const second = await openPage(context, server.url);
  await waitForText(second, "Mivo is open in another tab");
  assert.equal(await first.$(".alone"), null);
  await second.click(".alone .action");
  await second.waitForSelector(".window");
  await waitForText(first, "Mivo is open in another tab");
});

test("without HTTPS it says why it keeps nothing", async () => {
  const page = await openPage(context, server.url.replace("localhost", insecureHost));
  await waitForText(page, "HTTPS");
  assert.equal(await page.$(".window"), null);
});

test("what another app shares is shown, and no more", async () => {
  const page = await openPage(context, server.url);
  assert.ok(await isKept(page));
  await page.reload();
  await page.waitForSelector(".window");
  await Promise.all([
    page.waitForNavigation(),
    page.evaluate(() => {
      const input = Object.assign(document.createElement("input"), { type: "file", name: "files" });
      const chosen = new DataTransfer();
      chosen.items.add(new File(["start,end\n"], "fasts.csv", { type: "text/csv" }));
      input.files = chosen.files;
      const form = Object.assign(document.createElement("form"), { action: "shared", method: "post", enctype: "multipart/form-data" });
      form.append(input);
      document.body.append(form);
      // Another app posts; the page's own policy lets no form of its own go anywhere.
      return fetch("shared", { method: "post", body: new FormData(form), redirect: "manual" }).then(() => location.assign("./?shared"));
    }),
  ]);
  await page.waitForSelector("dialog[open]");
  assert.equal(await page.$eval("dialog h2", (title) => title.textContent), "Import");
  assert.equal(await page.evaluate(() => caches.has("mivo-shared")), false);
});
