// In a browser.
//
// SPDX-License-Identifier: MIT

import { statisticsWith } from './statistics.mjs';

export const statistics = statisticsWith(async () => {
  const answer = await fetch(new URL('mivo.wasm', import.meta.url));
  if (!answer.ok) throw new Error(`mivo.wasm: ${answer.status} ${answer.statusText}`);
  return answer.arrayBuffer();
});
