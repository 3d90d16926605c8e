// SPDX-License-Identifier: MIT
// Builds the page into a folder of files whose names say what is in them, so that each can be kept for ever; only the
// page itself, the service worker and the manifest have names of their own.
//
//     node build.mjs [--into FOLDER] [--drawing FILE.wasm] [--engine FOLDER] [--recorded]
//
// --drawing   the compiled drawing module, if it is not where ./test web leaves it
// --engine    the folder of the compiled engine, whose files are taken along
// --recorded  pages recorded before answer in the place of an engine, for tests
import { createHash } from "node:crypto";
import { mkdirSync, readdirSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { basename, extname, join } from "node:path";
import { fileURLToPath } from "node:url";
import { parseArgs } from "node:util";
import { gzipSync } from "node:zlib";
import { build } from "esbuild";

const here = fileURLToPath(new URL(".", import.meta.url));
const { values: options } = parseArgs({
  options: { into: { type: "string" }, engine: { type: "string" }, drawing: { type: "string" }, recorded: { type: "boolean", default: false } },
});
const into = options.into ?? join(here, "built");
const drawingModule = options.drawing ?? join(here, "../../build/web/web/drawing/drawing.wasm");

rmSync(into, { recursive: true, force: true });
mkdirSync(into, { recursive: true });

const written = new Map(); // name → bytes

function write(name, content) {
  const bytes = Buffer.from(content);
  writeFileSync(join(into, name), bytes);
  written.set(name, bytes);
  return name;
}

function writeHashed(name, content) {
  const hash = createHash("sha256").update(content).digest("hex").slice(0, 10);
  return write(`${basename(name, extname(name))}-${hash}${extname(name)}`, content);
}

async function bundle(entry, define = {}) {
  const { outputFiles } = await build({
    entryPoints: [join(here, entry)],
    outdir: into,
    bundle: true,
    minify: true,
    write: false,
    format: "esm",
    target: ["chrome123", "firefox120", "safari17.5"],
    jsx: "automatic",
    jsxImportSource: "preact",
    define: Object.fromEntries(Object.entries(define).map(([name, value]) => [name, JSON.stringify(value)])),
  });
  return Object.fromEntries(outputFiles.map((file) => [extname(file.path), file.text]));
}

// The icons of the app as one picture: each is a symbol.
function iconSheet() {
  const folder = join(here, "../../app/icons");
  const symbols = readdirSync(folder)
    .filter((file) => file !== "mivo.svg")
    .sort()
    .map((file) => {
      const [, attributes, drawing] = /<svg xmlns="[^"]*"([^>]*)>(.*)<\/svg>/s.exec(readFileSync(join(folder, file), "utf8"));
      return `<symbol id="${basename(file, ".svg")}"${attributes}>${drawing.replace(/\s*\n\s*/g, "")}</symbol>`;
    });
  return `<svg xmlns="http://www.w3.org/2000/svg">${symbols.join("")}</svg>`;
}

const template = (name, texts) =>
  Object.entries(texts).reduce((text, [key, value]) => text.replaceAll(`{{${key}}}`, value), readFileSync(join(here, name), "utf8"));

const icons = writeHashed("icons.svg", iconSheet());
const engine = Object.fromEntries(
  options.engine ? readdirSync(options.engine).map((file) => [file, writeHashed(file, readFileSync(join(options.engine, file)))]) : [],
);
const worker = options.recorded
  ? writeHashed("recorded.js", (await bundle("tests/recorded/worker.ts"))[".js"])
  : writeHashed("engine.js", (await bundle("src/worker/worker.ts", { ENGINE_FILES: engine }))[".js"]);
const drawing = writeHashed("drawing.wasm", readFileSync(drawingModule));
const page = await bundle("src/main.tsx", { WORKER_FILE: worker, ICON_FILE: icons, DRAWING_FILE: drawing });
const script = writeHashed("page.js", page[".js"]);
const style = writeHashed("page.css", page[".css"]);
const pictures = [
  write("icon.svg", readFileSync(join(here, "../../app/icons/mivo.svg"))),
  ...readdirSync(join(here, "icons")).map((file) => write(file, readFileSync(join(here, "icons", file)))),
];
write("manifest.webmanifest", readFileSync(join(here, "manifest.webmanifest")));
write("index.html", template("index.html", { script, style, icons }));

// What a version is: all of it is there, or nothing of it.
const version = createHash("sha256").update([...written.keys(), ...written.values()].join("\n")).digest("hex").slice(0, 10);
const files = ["./", ...[...written.keys()].filter((name) => name !== "index.html")];
write("service-worker.js", (await bundle("src/serviceWorker/serviceWorker.ts", { VERSION: version, FILES: files }))[".js"]);

// Beside each file that it makes smaller, for servers that send one where it is wanted; they are no files of their own.
const zipped = new Map([...written].map(([name, bytes]) => [name, gzipSync(bytes, { level: 9 })]));
for (const [name, bytes] of zipped) if (bytes.length < 0.9 * written.get(name).length) writeFileSync(join(into, `${name}.gz`), bytes);

const sizeOf = (names) => names.reduce((sum, name) => sum + zipped.get(name).length, 0);
const total = sizeOf([...written.keys()].filter((name) => !pictures.includes(name)));
const scripts = sizeOf([script, worker, "service-worker.js"]);
console.log(`${into}: ${(total / 1000).toFixed(1)} KB gzipped, of it ${(scripts / 1000).toFixed(1)} KB script`);
