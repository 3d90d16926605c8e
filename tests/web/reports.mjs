// node reports.mjs ENGINE.wasm MIVO CATALOGUES: whether the WebAssembly module tells of every sample what `mivo report
// --format json` prints: all numbers and dates, and all texts where both libraries of locales agree, blanks aside. And of
// random histories in zones whose clocks are odd: 40, or as many as MIVO_HISTORIES says.
//
// SPDX-License-Identifier: MIT

import { execFileSync } from 'node:child_process';
import { mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { pathToFileURL } from 'node:url';

import { loadEngine } from '../../web/engine/engine.mjs';
import { randomReport } from './histories.mjs';

const [wasm, mivo, catalogues] = process.argv.slice(2);
const engine = await loadEngine(readFileSync(wasm));
const catalogueOf = async (language) =>
  language === 'en' ? undefined : (await import(pathToFileURL(`${catalogues}/${language}.mjs`))).default;

const now = '2026-03-01T12:00:00Z';
const runs = [
  { file: 'data/ten-years.json', range: 'week', locale: 'en-US', timeZone: 'Europe/Berlin' },
  { file: 'data/ten-years.json', range: 'month', locale: 'fr-FR', timeZone: 'Australia/Lord_Howe' },
  { file: 'data/ten-years.json', range: 'year', locale: 'es-ES', timeZone: 'America/New_York', firstWeekday: 7 },
  { file: 'data/one-year.json', range: 'month', locale: 'en-GB', timeZone: 'Africa/Cairo', count: 'fasts' },
  { file: 'data/one-year.json', range: 'year', locale: 'en-US', timeZone: 'Asia/Kolkata', weightUnit: 'st' },
  { file: 'data/three-weeks.json', range: 'week', locale: 'fr-CA', timeZone: 'Pacific/Apia', ignoreGoal: true, maxBreakHours: 30 },
  { file: 'data/three-weeks.json', range: 'month', locale: 'es-ES', timeZone: 'UTC', weightUnit: 'lb' },
];

const optionNames = { timeZone: 'time-zone', firstWeekday: 'first-weekday', maxBreakHours: 'max-break-hours', weightUnit: 'weight-unit' };

function nativeReport({ file, ignoreGoal, now, ...options }) {
  const rest = Object.entries(options).flatMap(([name, value]) => [`--${optionNames[name] ?? name}`, String(value)]);
  if (ignoreGoal) rest.push('--ignore-goal');
  const given = ['report', '--format', 'json', '--input', file, '--now', now, ...rest];
  return JSON.parse(execFileSync(mivo, given, { maxBuffer: 1 << 28, encoding: 'utf8' }));
}

// Browsers write a plain blank where the library that they use has a narrow one.
const plain = (text) => text.replace(/[\u2009\u202f\u00a0]/g, ' ');

/** The ways to what differs, with both values. */
function differences(expected, found, way = '') {
  if (typeof expected === 'string' && typeof found === 'string')
    return plain(expected) === plain(found) ? [] : [`${way}: expected "${expected}", found "${found}"`];
  if (typeof expected !== 'object' || typeof found !== 'object' || !expected || !found)
    return expected === found ? [] : [`${way}: expected ${expected}, found ${found}`];
  const keys = new Set([...Object.keys(expected), ...Object.keys(found)]);
  return [...keys].flatMap((key) => differences(expected[key], found[key], way ? `${way}.${key}` : key));
}

const count = (value) => (typeof value === 'object' && value ? Object.values(value).reduce((sum, each) => sum + count(each), 0) : 1);

let failures = 0;
function expect(name, wrong) {
  console.log(`${wrong.length === 0 ? 'ok    ' : 'FAILED'} ${name}`);
  for (const each of wrong.slice(0, 10)) console.log(`       ${each}`);
  failures += wrong.length === 0 ? 0 : 1;
}

for (const { file, ...options } of runs) {
  const snapshot = readFileSync(file, 'utf8');
  const catalogue = await catalogueOf(options.locale.slice(0, 2));
  const expected = nativeReport({ file, now, ...options });
  const began = performance.now();
  const found = engine.statistics(snapshot, { now, catalogue, ...options });
  const took = Math.round(performance.now() - began);
  expect(`${Object.values({ file, ...options }).join(' ')}: ${count(expected)} values, ${took} ms`, differences(expected, found));
}

const folder = mkdtempSync(join(tmpdir(), 'mivo-histories-'));
const histories = Number(process.env.MIVO_HISTORIES ?? 40);
let wrong = 0;
for (let number = 1; number <= histories; ++number) {
  const { snapshot, ...options } = randomReport(number);
  const file = join(folder, `${number}.json`);
  writeFileSync(file, snapshot);
  const found = engine.statistics(snapshot, { catalogue: await catalogueOf(options.locale.slice(0, 2)), ...options });
  const differing = differences(nativeReport({ file, ...options }), found);
  if (differing.length > 0) expect(`random history ${number}: ${Object.values(options).join(' ')}`, differing);
  wrong += differing.length > 0 ? 1 : 0;
}
rmSync(folder, { recursive: true });
if (wrong === 0) expect(`${histories} random histories`, []);

// What is wrong is told in one sentence, and the module goes on.
const refusals = [
  ['{"version": 1, "fasts": [{"start": "soon", "end": null}]}', {}, /^snapshot:1: fasts\[0\]\.start: expected .*, found "soon"$/],
  ['{"version": 1}', { range: 'decade' }, /^range: expected week, month or year, found "decade"$/],
  ['{"version": 1}', { maxBreakHours: -1 }, /^maxBreakHours: expected whole hours from 0 to 87660000$/],
  ['{"version": 1}', { colour: 'red' }, /^colour: there is no such option$/],
];
for (const [snapshot, options, sentence] of refusals) {
  let found = 'nothing';
  try {
    engine.statistics(snapshot, { now, timeZone: 'UTC', locale: 'en', ...options });
  } catch (error) {
    found = error.message;
  }
  expect(`refuses: ${found}`, sentence.test(found) ? [] : [`expected ${sentence}`]);
}
const empty = engine.statistics({ version: 1, fasts: [] }, { now, timeZone: 'UTC', locale: 'en' });
expect('goes on after a refusal', empty.screen[0].card === 'start' ? [] : [`found the card ${empty.screen[0].card}`]);

if (failures > 0) console.log(`${failures} failed`);
process.exitCode = failures > 0 ? 1 : 0;
