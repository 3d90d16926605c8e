// SPDX-License-Identifier: MIT
// The only scripts that the page starts: no text that comes from elsewhere can become one.
declare const WORKER_FILE: string;

const serviceWorker = "service-worker.js";

interface ScriptPolicy {
  createScriptURL(url: string): string;
}
declare const trustedTypes: { createPolicy(name: string, rules: ScriptPolicy): ScriptPolicy } | undefined;

const rules: ScriptPolicy = {
  createScriptURL(url) {
    if (url !== WORKER_FILE && url !== serviceWorker) throw new TypeError(url);
    return url;
  },
};
const policy = typeof trustedTypes === "undefined" ? rules : trustedTypes.createPolicy("mivo", rules);

/// `name` is of the history that it is to open.
export function startEngineWorker(name: string): Worker {
  return new Worker(policy.createScriptURL(WORKER_FILE), { type: "module", name });
}

export function registerServiceWorker(): Promise<ServiceWorkerRegistration> {
  return navigator.serviceWorker.register(policy.createScriptURL(serviceWorker), { updateViaCache: "none" });
}
