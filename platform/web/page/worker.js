// Keeps the page's files, so that it works without a connection: most when the page is first
// opened, each song when it is first played, and what proves games when that is first done.

const version = '@version@'; // of the files' contents
const files = @files@;
const provers = /\/kov-prove\.(?:js|wasm)$/;
const songs = 'kov-songs'; // kept over versions, as they are large and change least
const cacheName = `kov-${version}`;

// A new version waits until no page has the old one open, so that no page is made of both.
self.addEventListener('install', event => {
  event.waitUntil(caches.open(cacheName).then(cache =>
    cache.addAll(files.map(file => new Request(file, { cache: 'no-cache' })))));
});

self.addEventListener('activate', event => {
  const isOld = name => name.startsWith('kov-') && name !== cacheName && name !== songs;
  event.waitUntil(caches.keys()
    .then(names => Promise.all(names.filter(isOld).map(name => caches.delete(name))))
    .then(() => self.clients.claim()));
});

/** The part of a kept file that a player of sound asks for. */
async function partOf(answer, range) {
  const bounds = /^bytes=(\d+)-(\d*)$/.exec(range);
  if (!bounds) return answer;
  const whole = await answer.blob();
  const start = Number(bounds[1]);
  const end = bounds[2] ? Math.min(Number(bounds[2]), whole.size - 1) : whole.size - 1;
  return new Response(whole.slice(start, end + 1, whole.type), {
    status: 206,
    headers: {
      'Content-Range': `bytes ${start}-${end}/${whole.size}`,
      'Content-Type': answer.headers.get('Content-Type'),
    },
  });
}

async function songOf(request) {
  const cache = await caches.open(songs);
  const kept = await cache.match(request.url);
  const range = request.headers.get('Range');
  if (kept) return range ? partOf(kept, range) : kept;
  const answer = await fetch(request.url); // whole, whatever part was asked for
  if (answer.ok) await cache.put(request.url, answer.clone());
  return answer.ok && range ? partOf(answer, range) : answer;
}

async function answer(request) {
  if (new URL(request.url).pathname.includes('/Songs/')) return songOf(request);
  const cache = await caches.open(cacheName);
  const kept = await cache.match(request, { ignoreSearch: true });
  if (kept) return kept;
  const found = await fetch(request);
  if (provers.test(request.url) && found.ok) await cache.put(request.url, found.clone());
  return found;
}

self.addEventListener('fetch', event => {
  const isOurs = event.request.url.startsWith(self.registration.scope);
  if (event.request.method !== 'GET' || !isOurs) return;
  const withoutConnection = () => new Response(null, { status: 504 });
  event.respondWith(answer(event.request).catch(withoutConnection));
});
