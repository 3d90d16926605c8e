// SPDX-License-Identifier: MIT
// What tests drive: the built page in a browser, from a server of their own, with recorded pages.
import { createServer } from "node:http";
import { existsSync, readFileSync } from "node:fs";
import { extname, join } from "node:path";
import { fileURLToPath } from "node:url";
import puppeteer from "puppeteer-core";

const built = fileURLToPath(new URL("../built", import.meta.url));
/// The page on the compiled engine.
export const onEngine = fileURLToPath(new URL("../built-on-engine", import.meta.url));
const recordings = fileURLToPath(new URL("../generated", import.meta.url));
const sample = fileURLToPath(new URL("../../../data/one-year.json", import.meta.url));
const types = {
  ".html": "text/html",
  ".js": "text/javascript",
  ".mjs": "text/javascript",
  ".css": "text/css",
  ".svg": "image/svg+xml",
  ".png": "image/png",
  ".wasm": "application/wasm",
  ".json": "application/json",
  ".webmanifest": "application/manifest+json",
};
/// Leads to the tests' own server, and is not trusted as localhost is.
export const insecureHost = "mivo.test";

/// "chromium", or "firefox", which is never dark here.
export const browserName = process.env.MIVO_BROWSER ?? "chromium";
const browsers = {
  chromium: {
    paths: ["/usr/bin/chromium", "/usr/bin/chromium-browser", "/usr/bin/google-chrome"],
    options: (language) => ({
      args: ["--no-sandbox", "--disable-gpu", `--accept-lang=${language}`, `--host-resolver-rules=MAP ${insecureHost} 127.0.0.1`],
    }),
  },
  firefox: {
    paths: ["/usr/bin/firefox", "/usr/bin/firefox-esr"],
    options: (language) => ({
      browser: "firefox",
      extraPrefsFirefox: { "intl.accept_languages": language, "network.dns.localDomains": insecureHost, "layout.css.prefers-color-scheme.content-override": 1 },
    }),
  },
};

/// Serves a page. `change` makes another recording of it; `replace` gives a file another content.
export async function startServer({ folder = built, port = 0, change = (recording) => recording, replace = {} } = {}) {
  const server = createServer((request, response) => {
    const path = new URL(request.url, "http://localhost").pathname;
    const name = path === "/" ? "index.html" : path.slice(1);
    const recorded = /^recorded-(.*)\.json$/.exec(name)?.[1];
    const file = recorded ? join(recordings, `${recorded}.json`) : name === "sample.json" ? sample : join(folder, name);
    if (!existsSync(file)) return response.writeHead(404).end();
    const read = () => readFileSync(file);
    const content = recorded ? JSON.stringify(change(JSON.parse(read()))) : replace[name] ? replace[name](read().toString()) : read();
    response.writeHead(200, { "content-type": types[extname(file)] ?? "text/plain", "cache-control": "no-cache" }).end(content);
  });
  await new Promise((started) => server.listen(port, started));
  return {
    url: `http://localhost:${server.address().port}/`,
    port: server.address().port,
    replace,
    stop: () => {
      server.closeAllConnections();
      return new Promise((stopped) => server.close(stopped));
    },
  };
}

/// `options` as Puppeteer's.
export async function startBrowser({ language = "en-GB", ...options } = {}) {
  if (!browsers[browserName]) throw new Error(`MIVO_BROWSER: expected ${Object.keys(browsers).join(" or ")}, found "${browserName}"`);
  const { paths, options: usual } = browsers[browserName];
  const executablePath = paths.find((path) => existsSync(path));
  if (!executablePath) throw new Error(`none of these browsers is installed: ${paths.join(", ")}`);
  return puppeteer.launch({ executablePath, ...usual(language), ...options });
}

export const phone = { width: 390, height: 844, isMobile: true, hasTouch: true };
export const desktop = { width: 1280, height: 800 };

/// A tab with the page in it. What the page complains of is kept in `complaints`: faults, and what its policy refused.
export async function openPage(browser, url, { viewport = phone, scheme = "light" } = {}) {
  const page = await browser.newPage();
  page.complaints = [];
  page.on("pageerror", (error) => page.complaints.push(error.message));
  page.on("console", (message) => {
    if (message.type() === "error") page.complaints.push(message.text());
  });
  await page.setViewport(viewport);
  if (browserName === "chromium") await page.emulateMediaFeatures([{ name: "prefers-color-scheme", value: scheme }]);
  else await page.evaluateOnNewDocument(ignoreCancelling);
  await page.goto(url);
  await page.waitForSelector(".window, .alone");
  return page;
}

// Where files are chosen by a test, Firefox says first that none were.
function ignoreCancelling() {
  Object.defineProperty(HTMLInputElement.prototype, "oncancel", { set() {} });
}

export const textOf = (page, selector) => page.$eval(selector, (element) => element.textContent);
export const waitForText = (page, text) =>
  page.waitForFunction((wanted) => document.body.innerText.includes(wanted), {}, text);
/// What has the keys, as it is called.
export const focused = (page) =>
  page.evaluate(() => {
    const focused = document.activeElement;
    return focused?.getAttribute("aria-label") ?? focused?.querySelector(":scope > .heard")?.textContent ?? focused?.textContent ?? "";
  });
