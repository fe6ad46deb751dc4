// Vorel offline: the first visit keeps every file of the site in a cache named
// after its version; later visits are served from it, with or without network.
// A new version is fetched whole into a cache of its own before it takes over
// and the old cache goes: a page started under the old version keeps the code
// it loaded, and the next start runs the new one whole.
importScripts('precache.js');
const { version, files } = self.PRECACHE;
const CACHE = `vorel-${version}`;

self.addEventListener('install', (event) => {
  event.waitUntil(caches.open(CACHE)
    .then((cache) => cache.addAll(files.map((file) => new Request(file, { cache: 'reload' }))))
    .then(() => self.skipWaiting()));
});

self.addEventListener('activate', (event) => {
  event.waitUntil(caches.keys()
    .then((names) => Promise.all(names.filter((n) => n.startsWith('vorel-') && n !== CACHE)
      .map((n) => caches.delete(n))))
    .then(() => self.clients.claim()));
});

self.addEventListener('fetch', (event) => {
  if (event.request.method !== 'GET') return;
  event.respondWith(caches.open(CACHE).then(async (cache) =>
    (await cache.match(event.request, { ignoreSearch: true })) ?? fetch(event.request)));
});
