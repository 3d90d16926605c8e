// SPDX-License-Identifier: MIT
import assert from "node:assert/strict";
import { after, before, test } from "node:test";
import { desktop, focused, openPage, phone, startBrowser, startServer, textOf, waitForText } from "./page.mjs";

let browser;
let server;
before(async () => {
  browser = await startBrowser();
  server = await startServer();
});
after(async () => {
  await browser?.close();
  await server?.stop();
});

async function withPage(options, drive) {
  const page = await openPage(browser, options.url ?? server.url, options);
  try {
    await drive(page);
    assert.deepEqual(page.complaints, []);
  } finally {
    await page.close();
  }
}

const tab = (place) => `.tab-bar .tab:nth-child(${place})`;

test("tabs are gone through by keyboard, and said to be chosen", () =>
  withPage({ viewport: phone }, async (page) => {
    assert.equal(await page.$eval(".tab[aria-current]", (chosen) => chosen.textContent), "Statistics");
    await page.focus(tab(3));
    await page.keyboard.press("Enter");
    await page.waitForSelector(".settings");
    assert.equal(await textOf(page, ".tab[aria-current]"), "Settings");
  }));

test("a tab is found again where it was left", () =>
  withPage({ viewport: phone }, async (page) => {
    const place = () => page.evaluate(() => scrollY);
    await page.evaluate(() => scrollTo(0, 700));
    await page.evaluate(() => document.querySelector(".of-badges .whole").click());
    await page.waitForSelector(".pushed");
    assert.equal(await place(), 0);
    await page.keyboard.press("Escape");
    await page.waitForFunction(() => !document.querySelector(".pushed"));
    assert.equal(await place(), 700);
    await page.click(tab(3));
    await page.waitForSelector(".settings");
    assert.equal(await place(), 0);
    await page.click(tab(2));
    await page.waitForSelector(".of-trend");
    assert.equal(await place(), 700);
  }));

test("the time range is at hand once it was scrolled past, however far", () =>
  withPage({ viewport: phone }, async (page) => {
    const isAtHand = (expected) =>
      page.waitForFunction((wanted) => (document.querySelector(".sticky-range:not([hidden])") !== null) === wanted, {}, expected);
    const jump = (to) => page.evaluate((selector) => document.querySelector(selector).scrollIntoView({ block: "center" }), to);
    await isAtHand(false);
    await jump(".of-trend");
    await isAtHand(true);
    await jump(".title-bar");
    await isAtHand(false);
    await jump(".of-addWeight");
    await isAtHand(false);
  }));

test("a bar is selected by a tap and by arrows, and let go by Escape", () =>
  withPage({ viewport: desktop }, async (page) => {
    const chart = ".of-fastingChart .chart";
    await page.waitForSelector(`${chart} .bars path`);
    await page.click(`${chart} .scroller`);
    await page.waitForSelector(`${chart} .popup`);
    const place = () => page.$eval(`${chart} .popup path`, (pointer) => pointer.getBoundingClientRect().x);
    const before = await place();
    await page.focus(`${chart} .scroller`);
    await page.keyboard.press("ArrowRight");
    await page.waitForFunction((x) => document.querySelector(".of-fastingChart .popup path")?.getBoundingClientRect().x > x, {}, before);
    await page.keyboard.press("Escape");
    await page.waitForFunction(() => !document.querySelector(".popup"));
  }));

test("the latest bar stands at the trailing edge, in either direction", async (context) => {
  for (const [name, isRightToLeft] of [["to the right", false], ["to the left", true]])
    await context.test(name, async () => {
      const mirrored = await startServer({
        change: (recording) => {
          recording.pages.browser.isRightToLeft = isRightToLeft;
          return recording;
        },
      });
      await withPage({ url: mirrored.url }, async (page) => {
        const present = await page.waitForSelector(".of-fastingChart .present");
        const x = await present.evaluate((dot) => dot.getBoundingClientRect().x);
        assert.ok(isRightToLeft ? x < phone.width / 3 : x > phone.width / 2, `${x}`);
      });
      await mirrored.stop();
    });
});

test("a fast of the history is removed by its key, and said to be", () =>
  withPage({ viewport: phone }, async (page) => {
    await page.click(tab(1));
    await page.waitForSelector(".row-face");
    const [first, second] = await page.$$eval(".row-face", (rows) => rows.map((row) => row.lastElementChild.textContent));
    await page.focus(".row-face");
    await page.keyboard.press("ArrowDown");
    assert.equal(await focused(page), second);
    await page.keyboard.press("ArrowUp");
    await page.keyboard.press("Delete");
    await waitForText(page, "Fast deleted");
    assert.notEqual(await textOf(page, ".row-face > .heard"), first);
    assert.equal(await page.$eval(".message", (message) => message.getAttribute("role")), "status");
  }));

test("a sheet holds the keys, and gives them back where they came from", () =>
  withPage({ viewport: phone }, async (page) => {
    await page.click(tab(1));
    const row = await page.waitForSelector(".row-face");
    await row.focus();
    const before = await focused(page);
    await page.keyboard.press("Enter");
    await page.waitForSelector("dialog[open]");
    for (let stop = 0; stop < 30; ++stop) {
      await page.keyboard.press("Tab");
      assert.ok(await page.evaluate(() => document.activeElement === document.body || document.activeElement.closest("dialog") !== null));
    }
    await page.keyboard.press("Escape");
    await page.waitForFunction(() => !document.querySelector("dialog"));
    assert.equal(await focused(page), before);
  }));

test("the browser's way back closes what is open, and stays", () =>
  withPage({ viewport: phone }, async (page) => {
    await page.click(".of-badges .whole");
    await page.waitForSelector(".pushed");
    await page.evaluate(() => history.back());
    await page.waitForFunction(() => !document.querySelector(".pushed"));
    assert.equal(page.url(), server.url);
  }));

test("text of the user's is text, whatever it says", async () => {
  const note = '<img src=x onerror="document.title=1"><script>document.title=2</script>';
  const hostile = await startServer({
    change: (recording) => {
      for (const row of recording.lists.historyRows) row.note = note;
      return recording;
    },
  });
  await withPage({ url: hostile.url }, async (page) => {
    await page.click(tab(1));
    await page.waitForSelector(".row-note");
    assert.equal(await textOf(page, ".row-note"), note);
    assert.equal(await page.title(), "Mivo");
    const refused = await page.evaluate(() => {
      try {
        document.createElement("div").innerHTML = "<b>bold</b>";
        return false;
      } catch (error) {
        return error instanceof TypeError;
      }
    });
    assert.ok(refused, "the page's policy takes text for markup");
    page.complaints = page.complaints.filter((complaint) => !complaint.includes("TrustedHTML"));
  });
  await hostile.stop();
});

test("a list of ten years draws what is near, and goes to its end", async () => {
  const long = await startServer({
    change: (recording) => {
      const [row] = recording.lists.historyRows;
      recording.lists.historyRows = Array.from({ length: 3650 }, (_, place) => ({ ...row, date: `Day ${place}`, spoken: `Day ${place}` }));
      recording.pages.history.count = 3650;
      return recording;
    },
  });
  await withPage({ url: long.url }, async (page) => {
    await page.click(tab(1));
    await page.waitForSelector(".row-face");
    assert.ok((await page.$$(".row-face")).length < 150);
    await page.focus(".row-face");
    await page.keyboard.press("End");
    await page.waitForFunction(() => document.activeElement?.lastElementChild?.textContent === "Day 3649");
    assert.ok((await page.$$(".row-face")).length < 150);
  });
  await long.stop();
});

test("statistics are printed by themselves, in light colours, and then the window is back", async () => {
  const exporting = await startServer({
    change: (recording) => {
      recording.pages.screens = { tab: "settings", page: "", sheet: "export" };
      return recording;
    },
  });
  await withPage({ url: exporting.url, scheme: "dark" }, async (page) => {
    await page.evaluate(() => (window.print = () => (window.wasAsked = true)));
    await page.click("dialog[open] .sheet-line:nth-child(4)");
    await page.waitForFunction(() => window.wasAsked);
    assert.equal(await page.$(".tab-bar, dialog"), null);
    assert.equal(await page.evaluate(() => getComputedStyle(document.querySelector(".printed .card")).backgroundColor), "rgb(255, 255, 255)");
    await page.waitForSelector(".printed .bars path");
    await page.evaluate(() => dispatchEvent(new Event("afterprint")));
    await page.waitForSelector(".tab-bar");
  });
  await exporting.stop();
});

test("at twice the text size nothing is wider than the phone", () =>
  withPage({ viewport: { ...phone, width: 320 } }, async (page) => {
    await page.evaluate(() => (document.documentElement.style.fontSize = "200%"));
    await page.evaluate(() => (document.documentElement.dataset.text = "stacked one-column"));
    for (const place of [1, 2, 3]) {
      await page.click(tab(place));
      await page.waitForNetworkIdle({ idleTime: 200 });
      assert.ok((await page.evaluate(() => document.documentElement.scrollWidth)) <= 320, `tab ${place}`);
    }
  }));
