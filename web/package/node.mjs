// In Node, which fetches no files.
//
// SPDX-License-Identifier: MIT

import { readFile } from 'node:fs/promises';

import { statisticsWith } from './statistics.mjs';

export const statistics = statisticsWith(() => readFile(new URL('mivo.wasm', import.meta.url)));
