// SPDX-License-Identifier: MIT
// Keeps a version of the page: all of its files or none, and the old ones as long as a tab uses them.
declare const VERSION: string;
declare const FILES: string[];
declare const self: ServiceWorkerGlobalScope;

export {};

const cacheName = `mivo-version-${VERSION}`;
const sharedFiles = "mivo-shared";
const mostSharedFiles = 100;

self.addEventListener("install", (event) => {
  const requests = FILES.map((file) => new Request(file, { cache: "reload" }));
  event.waitUntil(caches.open(cacheName).then((cache) => cache.addAll(requests)));
});

self.addEventListener("activate", (event) => {
  const isOld = (name: string) => name.startsWith("mivo-version-") && name !== cacheName;
  event.waitUntil(caches.keys().then((names) => Promise.all(names.filter(isOld).map((name) => caches.delete(name)))));
});

// The version that waits is asked to take over: only where one tab is left, which then restarts.
self.addEventListener("message", (event) => {
  if (event.data !== "activate") return;
  event.waitUntil(
    self.clients.matchAll({ type: "window", includeUncontrolled: true }).then(async (tabs) => {
      event.ports[0]?.postMessage(tabs.length <= 1);
      if (tabs.length <= 1) await self.skipWaiting();
    }),
  );
});

self.addEventListener("fetch", (event) => {
  const { request } = event;
  const url = new URL(request.url);
  const scope = new URL(self.registration.scope);
  if (url.origin !== scope.origin) return;
  if (request.method === "POST" && url.pathname === `${scope.pathname}shared`) return event.respondWith(takeShared(request));
  if (request.method === "GET") event.respondWith(answer(request));
});

async function answer(request: Request): Promise<Response> {
  const cache = await caches.open(cacheName);
  const kept = await cache.match(request.mode === "navigate" ? "./" : request, { ignoreSearch: true });
  return kept ?? fetch(request);
}

// Any site can post here: what comes is put aside, and the page shows what it holds before anything is taken in.
async function takeShared(request: Request): Promise<Response> {
  const files = (await request.formData()).getAll("files").filter((entry) => entry instanceof File);
  await caches.delete(sharedFiles);
  const cache = await caches.open(sharedFiles);
  await Promise.all(
    files.slice(0, mostSharedFiles).map((file, place) => cache.put(`./shared/${place}/${encodeURIComponent(file.name)}`, new Response(file))),
  );
  return Response.redirect("./?shared", 303);
}

self.addEventListener("notificationclick", (event) => {
  event.notification.close();
  event.waitUntil(
    self.clients.matchAll({ type: "window" }).then(async ([tab]) => {
      if (tab) await tab.focus();
      else await self.clients.openWindow("./");
    }),
  );
});
