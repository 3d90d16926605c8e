// node package.mjs TARBALL MIVO TSC: whether the packed package does what its README says where it is installed, without
// a network, and whether a report of `mivo` is what its types say.
//
// SPDX-License-Identifier: MIT

import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join, resolve } from 'node:path';

const [tarball, mivo, tsc] = process.argv.slice(2).map((path) => resolve(path));
const folder = mkdtempSync(join(tmpdir(), 'mivo-package-'));
process.on('exit', () => rmSync(folder, { recursive: true }));
const run = (command, ...words) => execFileSync(command, words, { cwd: folder, encoding: 'utf8', stdio: ['ignore', 'pipe', 'inherit'] });
const report = (...words) => execFileSync(mivo, ['report', '--format', 'json', ...words], { encoding: 'utf8', maxBuffer: 1 << 28 });
const check = (name, condition) => {
  assert.ok(condition, name);
  console.log(`ok     ${name}`);
};

writeFileSync(join(folder, 'package.json'), '{ "private": true, "type": "module" }');
run('npm', 'install', '--offline', '--ignore-scripts', '--no-audit', '--no-fund', '--silent', tarball);
const installed = (file) => readFileSync(join(folder, 'node_modules/mivo', file), 'utf8');

// The example prints what stands behind its lines.
const [, example] = /```js\n(.*?)```/s.exec(installed('README.md'));
writeFileSync(join(folder, 'example.mjs'), example);
const promised = [...example.matchAll(/console\.log.*\/\/ (.*)/g)].map(([, line]) => line);
assert.deepEqual(run('node', 'example.mjs').trim().split('\n'), promised);
check('the example of the README', promised.length === 2);

// The same figures as the command, and texts by the catalogues that are in the package.
const history = resolve('data/three-weeks.json');
const options = { now: '2026-03-01T12:00:00Z', timeZone: 'Europe/Berlin', locale: 'es-ES', range: 'month' };
const printed = report('--input', history, '--now', options.now, '--time-zone', options.timeZone, '--locale', options.locale, '--range', options.range);
writeFileSync(
  join(folder, 'figures.mjs'),
  `import { readFileSync } from 'node:fs';
   import { statistics } from 'mivo';
   const told = await statistics(readFileSync(${JSON.stringify(history)}, 'utf8'), ${JSON.stringify(options)});
   const wrong = await statistics({ version: 2 }).catch((error) => error.message);
   console.log(JSON.stringify({ told, wrong }));`,
);
const { told, wrong } = JSON.parse(run('node', 'figures.mjs'));
const plain = (value) => JSON.parse(JSON.stringify(value).replace(/[\u2009\u202f\u00a0]/g, ' ')); // blanks of locale data
assert.deepEqual(plain(told.stats), plain(JSON.parse(printed).stats));
check('the figures of `mivo report`', told.trends.length === 7);
const [{ averageFastTimeRangeText: sentence }] = told.trends;
check(`in Spanish: ${sentence}`, sentence.endsWith('el mes pasado.'));
check(`refuses: ${wrong}`, wrong.startsWith('snapshot:1: version: '));

// What the command prints, as a literal: a field too many, one too few and one of another type do not compile.
const compiles = (name, literal, uses = '') => {
  writeFileSync(join(folder, 'use.ts'), `import { statistics, type Report } from "mivo";\nexport const report: Report = ${literal};\n${uses}`);
  try {
    execFileSync(tsc, ['--noEmit', '--strict', '--skipLibCheck', 'false', '--target', 'es2022', '--module', 'nodenext', 'use.ts'], { cwd: folder, encoding: 'utf8' });
    return true;
  } catch (error) {
    console.log(`       ${name}: ${error.stdout.split('\n')[0]}`);
    return false;
  }
};
const use = 'export const hours: number = (await statistics({ version: 1 }, { range: "week" })).stats.totalHours;\n';
check('a report is of its type', compiles('report', printed, use));
const changed = (change) => {
  const copy = JSON.parse(printed);
  change(copy);
  return JSON.stringify(copy);
};
check('with a field too many it is not', !compiles('too many', changed((copy) => (copy.stats.another = 1))));
check('with a field too few it is not', !compiles('too few', changed((copy) => delete copy.stats.totalHours)));
check('with another text for a number it is not', !compiles('other type', changed((copy) => (copy.stats.totalFasts = '3'))));
check('with an unknown card it is not', !compiles('card', changed((copy) => (copy.screen[0].card = 'unknown'))));
