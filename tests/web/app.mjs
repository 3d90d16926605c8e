// node app.mjs APP.wasm MIVO CATALOGUES: whether the app in a worker keeps what it says it kept, and shares it with the
// desktop's programs.
//
// SPDX-License-Identifier: MIT

import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { webcrypto } from 'node:crypto';
import { existsSync, mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { createServer } from 'node:http';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { pathToFileURL } from 'node:url';

import { StoredFiles } from '../../web/adapters/storedFiles.mjs';
import { loadApp } from '../../web/worker/app.mjs';
import { MemoryFolder } from './files.mjs';

globalThis.crypto ??= webcrypto;
process.env.TZ = 'Europe/Berlin';

const [wasm, mivo, catalogues] = process.argv.slice(2);
const module = await WebAssembly.compile(readFileSync(wasm));
const hour = 3600;
const now = Math.floor(Date.now() / 1000);
const workspace = mkdtempSync(join(tmpdir(), 'mivo-app-'));
const running = new Set();

/** An app on a folder; `app.told` are the names that changed, `app.taken` the files that it handed out. */
async function load(folder, { languages = ['en-GB'], server } = {}) {
  const told = [], taken = [];
  const app = await loadApp({
    module,
    languages,
    server,
    folder: async () => folder,
    catalogue: async (language) =>
      language === 'en' ? undefined : (await import(pathToFileURL(`${catalogues}/${language}.mjs`))).default,
    events: { changed: (names) => told.push(...names), written: (name, type, bytes) => taken.push({ name, type, bytes }) },
    readPiece: (file, at, count) => file.bytes.subarray(at, at + count),
  });
  running.add(app);
  return Object.assign(app, { told, taken });
}

async function opened(folder, options) {
  const app = await load(folder, options);
  assert.equal(await app.open(), null);
  return app;
}

const offered = (text) => ({ bytes: Buffer.from(text), size: Buffer.byteLength(text) });
const message = (app) => app.page('message').text;
const history = (app) => app.rows('historyRows', 0, 1000);

/** A fast that ended so many hours ago. */
function addFast(app, hoursAgo, hours = 16) {
  app.send({ didTapStart: { start: now - (hoursAgo + hours) * hour, goalSeconds: 16 * hour } });
  app.send({ didTapStop: now - hoursAgo * hour });
}

const pages = ['fasting', 'history', 'statistics', 'weights', 'settings', 'fastingChart', 'weightChart'];
const shown = (app) => [...pages.map((page) => app.page(page)), history(app), app.rows('weightRows', 0, 100)];

const native = (...given) => execFileSync(mivo, given, { encoding: 'utf8', maxBuffer: 1 << 28 });
const report = (file) => native('report', '--database', file, '--format', 'json', '--now', '2026-03-01T12:00:00Z');

const cases = {
  async 'says words before it is open, in the language that was chosen'() {
    const folder = new MemoryFolder();
    const app = await load(folder, { languages: ['fr-CA', 'en'] });
    assert.equal(app.page('words').close, 'Fermer');
    assert.equal(app.page('browser').language, 'fr-CA');
    assert.equal(await app.open(), null);
    const { language } = app.page('settings');
    app.send({ didChooseLanguage: language.options.indexOf('Deutsch') });
    const other = await load(folder, { languages: ['fr-CA', 'en'] }); // while the first one has the files
    assert.equal(other.page('browser').language, 'de-CA');
    assert.equal(other.page('words').close, 'Schließen');
  },

  async 'records, edits, takes back, and is the same when it starts again'() {
    const folder = new MemoryFolder();
    const app = await opened(folder);
    app.page('fasting');
    app.told.length = 0;
    addFast(app, 40);
    assert.ok(app.told.includes('fasting'), app.told.join());
    addFast(app, 10, 18);
    app.send({ didTapFast: 0 });
    app.send({ didChangeDraftNote: 'Ramen' });
    app.send('didTapSaveDraft');
    assert.equal(history(app)[0].note, 'Ramen');
    app.send('didTapMessage'); // undo
    assert.equal(history(app)[0].note, '');
    app.send({ statistics: { addWeightLogAction: { didChangeText: '81.4' } } });
    app.send({ statistics: { addWeightLogAction: 'didTapSave' } });
    assert.equal(app.rows('weightRows', 0, 9).length, 1);
    app.send({ didOpen: 'statistics' });
    assert.deepEqual(shown(await opened(folder.after({ powerLoss: true }))), shown(app));
  },

  async 'refuses what is no action, and goes on'() {
    const app = await opened(new MemoryFolder());
    assert.throws(() => app.send({ didTapStart: { start: 'soon' } }), /didTapStart\.start: expected a number/);
    assert.throws(() => app.page('nowhere'), /there is no page "nowhere"/);
    addFast(app, 1);
    assert.equal(history(app).length, 1);
  },

  async 'opens a history of the desktop, with its log, and gives one back that it opens'() {
    const file = join(workspace, 'mivo.sqlite');
    native('import', '--database', file, 'data/one-year.json');
    const folder = new MemoryFolder();
    const files = await StoredFiles.open(folder);
    for (const part of ['', '-wal'])
      if (existsSync(file + part)) files.replace(`mivo.sqlite${part}`, readFileSync(file + part));
    files.close();
    const app = await opened(folder);
    assert.equal(app.page('history').count, JSON.parse(readFileSync('data/one-year.json')).fasts.length);
    const taken = join(workspace, 'taken.sqlite');
    writeFileSync(taken, app.database());
    assert.equal(report(taken), report(file));
    addFast(app, 1);
    writeFileSync(taken, app.database());
    assert.notEqual(report(taken), report(file));
    assert.match(native('status', '--database', taken), /./);
  },

  async 'keeps all that it confirmed wherever it is killed'() {
    const folder = new MemoryFolder();
    const app = await opened(folder);
    const moments = [];
    let confirmed = 0;
    folder.onStep = () => moments.push({ confirmed, killed: folder.after(), dark: folder.after({ powerLoss: true }) });
    for (; confirmed < 3; ++confirmed) addFast(app, 90 - 30 * confirmed);
    folder.onStep = () => {};
    assert.ok(moments.length > 20, `${moments.length} moments`);
    for (const { confirmed: least, killed, dark } of moments)
      for (const left of [killed, dark]) {
        const count = history(await opened(left)).length;
        assert.ok(count === least || count === least + 1, `${count} fasts where ${least} were confirmed`);
      }
  },

  async 'says that the disk is full, at whichever write, and loses nothing that it confirmed'() {
    const before = new MemoryFolder();
    addFast(await opened(before), 30);
    let refusals = 0;
    for (let step = 1, isDone = false; !isDone; ++step) {
      const folder = before.after();
      const app = await opened(folder);
      folder.fullFrom = folder.steps + step;
      app.send({ didTapStart: { start: now - hour, goalSeconds: 16 * hour } });
      isDone = folder.steps < folder.fullFrom;
      const isKept = app.page('fasting').isRunning;
      if (!isKept) {
        assert.equal(message(app), 'Nothing was saved: the disk is full. Make room and try again.');
        ++refusals;
      }
      assert.equal((await opened(folder.after({ powerLoss: true }))).page('fasting').isRunning, isKept);
      folder.fullFrom = Infinity;
      if (!isKept) app.send({ didTapStart: { start: now - hour, goalSeconds: 16 * hour } });
      assert.equal((await opened(folder.after({ powerLoss: true }))).page('fasting').isRunning, true);
    }
    assert.ok(refusals > 0);
  },

  async 'puts a damaged history aside, or goes on from a backup'() {
    const damage = async (folder) => {
      const files = await StoredFiles.open(folder);
      files.remove('mivo.sqlite-wal');
      files.replace('mivo.sqlite', Buffer.alloc(8192, 'no database'));
      files.close();
      return folder;
    };
    const app = await opened(await damage(new MemoryFolder()));
    assert.equal(message(app), 'Your history was damaged and was put aside as mivo.sqlite.damaged-1. A new one was begun.');

    const folder = new MemoryFolder();
    const first = await opened(folder);
    addFast(first, 20);
    first.send({ didOpen: 'backups' });
    first.send({ backups: 'didTapBackUp' });
    assert.equal(first.page('backups').rows.length, 1);
    const left = await damage(folder.after());
    const second = await load(left);
    assert.match(await second.open(), /^mivo\.sqlite is damaged; the newest backup is of /);
    assert.ok(second.isDamaged());
    assert.equal(await second.open('fromNewestBackup'), null);
    assert.match(message(second), /^The backup of .* is restored\. The damaged file is kept as mivo\.sqlite\.damaged-1\.$/);
    assert.deepEqual(history(await opened(left.after({ powerLoss: true }))), history(first));
  },

  async 'makes the backup of the day before the first change, and goes back to it'() {
    const folder = new MemoryFolder();
    const app = await opened(folder);
    addFast(app, 30);
    app.send({ didOpen: 'backups' });
    assert.deepEqual(app.page('backups').rows.map(({ counts }) => counts), ['1 fast, 0 weights']); // it was running
    addFast(app, 5);
    app.send({ backups: { didChoose: 0 } });
    app.send({ backups: 'didTapRestore' });
    assert.equal(history(app).length, 0);
    assert.equal(app.page('fasting').isRunning, true);
    app.send('didTapMessage'); // undo
    assert.equal(history(app).length, 2);
  },

  async 'imports files that were chosen, and hands out exports that it reads again'() {
    const app = await opened(new MemoryFolder());
    app.offer('/1/fasts.csv', offered('start,end\n2026-01-01T20:00:00Z,2026-01-02T12:00:00Z\n'));
    app.send({ didChooseFiles: ['/1/fasts.csv'] });
    assert.equal(app.page('import').files[0].name, 'fasts.csv');
    app.send({ importing: { presented: 'didTapImport' } });
    assert.equal(history(app).length, 1);
    app.send({ didExportRow: { row: 0, path: 'mivo.json' } });
    assert.deepEqual(app.taken.map(({ name, type }) => ({ name, type })), [{ name: 'mivo.json', type: 'application/json' }]);
    const other = await opened(new MemoryFolder());
    other.offer('/1/mivo.json', offered(Buffer.from(app.taken[0].bytes).toString()));
    other.send({ didChooseFiles: ['/1/mivo.json'] });
    other.send({ importing: { presented: 'didTapImport' } });
    assert.deepEqual(history(other), history(app));
    other.offer('/2/all.zip', offered('PK\u0003\u0004'));
    other.send({ didChooseFiles: ['/2/all.zip'] });
    assert.match(other.page('import').fault, /all\.zip: expected a file that is not packed/);
  },

  async 'understands dates as they are typed in a language'() {
    const app = await opened(new MemoryFolder(), { languages: ['de-DE'] });
    app.send({ didOpen: 'addFast' });
    app.send({ didOpen: 'severalFasts' });
    app.send({ didTypeFasts: '3. Januar 2026 20:00 bis 4. Januar 2026 12:00' });
    assert.equal(app.page('severalFasts').preview?.fault ?? app.page('severalFasts').fault ?? '', '');
    app.send({ importing: { presented: 'didTapImport' } });
    assert.equal(history(app).length, 1);
  },

  async 'waits for the files that another one lets go of'() {
    const folder = new MemoryFolder();
    const first = await opened(folder);
    addFast(first, 3);
    setTimeout(() => first.close(), 100);
    assert.equal(history(await opened(folder)).length, 1);
  },

  async 'goes on while a server does not answer'() {
    const server = createServer(() => {}).listen(0, '127.0.0.1');
    await new Promise((resolve) => server.once('listening', resolve));
    const app = await opened(new MemoryFolder(), { server: `http://127.0.0.1:${server.address().port}` });
    app.send({ didOpen: 'roadmap' });
    assert.equal(app.page('roadmap').isLoading, true);
    addFast(app, 2);
    assert.equal(history(app).length, 1);
    app.send('didGoBack');
    server.closeAllConnections();
    server.close();
  },
};

let failures = 0;
for (const [name, run] of Object.entries(cases)) {
  const began = performance.now();
  try {
    await run();
    console.log(`ok     ${name}: ${Math.round(performance.now() - began)} ms`);
  } catch (error) {
    ++failures;
    console.log(`FAILED ${name}\n${error.stack.replace(/^/gm, '       ')}`);
  }
  for (const app of running) app.close();
  running.clear();
}
rmSync(workspace, { recursive: true });
if (failures > 0) console.log(`${failures} failed`);
process.exitCode = failures > 0 ? 1 : 0;
