// The statistics of a history, with the module wherever its bytes are.
//
// SPDX-License-Identifier: MIT

import { loadEngine } from '../engine/engine.mjs';

const catalogues = {
  de: () => import('./catalogues/de.mjs'),
  es: () => import('./catalogues/es.mjs'),
  fr: () => import('./catalogues/fr.mjs'),
};

/** `bytes` gives mivo.wasm, which is asked for once, or again where it could not be had. */
export function statisticsWith(bytes) {
  let loading;
  const engine = () =>
    (loading ??= bytes().then(loadEngine).catch((error) => {
      loading = undefined;
      throw error;
    }));

  return async function statistics(snapshot, options = {}) {
    const locale = options.locale ?? new Intl.DateTimeFormat().resolvedOptions().locale;
    const [loaded, catalogue] = await Promise.all([engine(), catalogues[new Intl.Locale(locale).language]?.()]);
    return loaded.statistics(snapshot, { ...options, locale, catalogue: catalogue?.default });
  };
}
