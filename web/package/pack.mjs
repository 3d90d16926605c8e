// Puts the package for npm together, and packs it; nothing is published.
//
//     node pack.mjs --build BUILD --catalogues FOLDER --types Report.ts --into FOLDER
//
// --build       of the preset web: it has mivo.wasm and knows the version
// --catalogues  has de.mjs, es.mjs and fr.mjs (web/locale/catalogues.mjs)
//
// SPDX-License-Identifier: MIT

import { execFileSync } from 'node:child_process';
import { cpSync, mkdirSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { parseArgs } from 'node:util';

const { buildSync } = createRequire(new URL('../page/package.json', import.meta.url))('esbuild'); // the page's tools do
const here = fileURLToPath(new URL('.', import.meta.url));
const text = { type: 'string' };
const { values: given } = parseArgs({ options: { build: text, catalogues: text, types: text, into: text } });

const [, version] = /^CMAKE_PROJECT_VERSION:STATIC=(.*)$/m.exec(readFileSync(join(given.build, 'CMakeCache.txt'), 'utf8'));
const description = {
  name: 'mivo',
  version,
  description: 'The statistics of intermittent fasting: totals, streaks, zones, trends and weights',
  license: 'MIT',
  type: 'module',
  engines: { node: '>=18' },
  exports: { '.': { types: './index.d.ts', node: './node.mjs', default: './index.mjs' } },
  types: './index.d.ts',
  sideEffects: false,
};

const folder = join(given.into, 'package');
rmSync(folder, { recursive: true, force: true });
mkdirSync(join(folder, 'catalogues'), { recursive: true });
writeFileSync(join(folder, 'package.json'), `${JSON.stringify(description, null, 2)}\n`);
for (const file of ['README.md', 'index.d.ts']) cpSync(join(here, file), join(folder, file));
buildSync({
  entryPoints: ['index.mjs', 'node.mjs'].map((file) => join(here, file)),
  outdir: folder,
  outExtension: { '.js': '.mjs' },
  bundle: true,
  format: 'esm',
  platform: 'neutral',
  external: ['node:*', './catalogues/*'],
});
for (const file of ['de.mjs', 'es.mjs', 'fr.mjs']) cpSync(join(given.catalogues, file), join(folder, 'catalogues', file));
cpSync(join(here, '../../LICENSE'), join(folder, 'LICENSE'));
cpSync(join(given.build, 'web/engine/mivo.wasm'), join(folder, 'mivo.wasm'));
// Declarations, so that no compiler takes it for a source.
cpSync(given.types, join(folder, 'Report.d.ts'));

const packed = execFileSync('npm', ['pack', '--silent', '--pack-destination', '..'], { cwd: folder, encoding: 'utf8' });
console.log(join(given.into, packed.trim()));
