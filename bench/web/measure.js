// What the page costs, as JSON: bytes that it fetches before the first song, ms from the navigation
// to the menu's first picture, ms of the page's thread a frame in a game's busiest half minute,
// ticks a second of a proof, and ms to seek over most of the longest recorded game, forwards and
// back.
// Wants what tests/web/run.sh builds and installs.

import { gzipSync } from 'node:zlib';

import { launch } from '../../tests/web/browsers.js';
import { Game, pause } from '../../tests/web/game.js';
import { Server, fileOf } from '../../tests/web/server.js';

const starts = 7;
const busyFrom = 140, busyFor = 30; // seconds of the recorded game
const framesBefore = 100; // that the browser may take to make its code fast
const keptGame = 'long-evening.kovreplay', keptLength = 420; // seconds
const seekFrom = 10, seekTo = keptLength - 5; // seconds

const at = (sorted, share) =>
  sorted[Math.min(sorted.length - 1, Math.floor(share * sorted.length))];
const sort = numbers => [...numbers].sort((a, b) => a - b);

/** In a browser that knows nothing of the page. */
async function start(server) {
  const browser = await launch('chromium', { width: 800, height: 644 });
  try {
    const page = await browser.newPage();
    const game = new Game(page, server);
    server.asked.length = 0;
    await game.open();
    const first = await page.evaluate(
      () => performance.getEntriesByName('kov-first-picture')[0].startTime);
    await pause(2000); // effects, and what is kept for later
    return { first, asked: [...new Set(server.asked)] };
  } finally {
    await browser.close();
  }
}

async function sizes(paths) {
  let plain = 0, compressed = 0;
  for (const path of paths) {
    const contents = await fileOf(path);
    if (!contents) continue;
    plain += contents.length;
    compressed += Math.min(contents.length, gzipSync(contents, { level: 9 }).length);
  }
  return { plain, compressed };
}

/** One frame for each picture of the browser, as the page does it. */
async function frames(server) {
  const browser = await launch('chromium', { width: 800, height: 644 });
  try {
    const page = await browser.newPage();
    page.setDefaultTimeout(300000);
    await page.goto(`${server.address}frames.html`);
    await page.waitForFunction(() => window.measureFrames);
    return await page.evaluate((...times) => window.measureFrames(...times),
                               busyFrom, busyFor, framesBefore);
  } finally {
    await browser.close();
  }
}

/** @returns ticks a second of the fastest of some proofs, as those behind the first of a table */
async function proof(page, server) {
  await page.goto(`${server.address}?prove=none`);
  return page.evaluate(async (name, count) => {
    const { prove } = await import('./prove.js');
    const bytes = new Uint8Array(await (await fetch(name)).arrayBuffer());
    let best = 0;
    for (let i = 0; i < count; ++i) {
      const begin = performance.now();
      const { text } = await prove(name, bytes);
      best = Math.max(best, parseInt(text.split(': ')[1], 10) / (performance.now() - begin));
    }
    return best * 1000;
  }, keptGame, starts);
}

/** @returns ms, each way */
async function seeks(page, server) {
  await page.goto(`${server.address}?watch=${keptGame}`);
  await page.waitForFunction(() => document.querySelector('[name=seek]').value > 500);
  const times = [];
  for (const place of [seekTo, seekFrom])
    times.push(await page.evaluate(async ms => {
      const [seek, end] = ['seek', 'end'].map(name => document.querySelector(`[name=${name}]`));
      const begin = performance.now();
      seek.value = ms;
      seek.dispatchEvent(new Event('input'));
      seek.dispatchEvent(new Event('change'));
      do await new Promise(requestAnimationFrame);
      while (end.textContent !== '' || Math.abs(seek.value - ms) > 1000);
      return performance.now() - begin;
    }, place * 1000));
  return times;
}

async function ofKeptGames(server) {
  const browser = await launch('chromium', { width: 800, height: 644 });
  try {
    const page = await browser.newPage();
    const ticksASecond = await proof(page, server);
    const [ahead, back] = await seeks(page, server);
    return { proof: ticksASecond, ahead, back };
  } finally {
    await browser.close();
  }
}

const server = await new Server().start();
try {
  const runs = [];
  for (let i = 0; i < starts; ++i) runs.push(await start(server));
  const firsts = sort(runs.map(run => run.first));
  const times = await frames(server);
  const sorted = sort(times);
  console.log(JSON.stringify({
    ...await sizes(runs[0].asked),
    firstPicture: at(firsts, 0.5),
    fastestFirstPicture: firsts[0],
    frames: times.length,
    median: at(sorted, 0.5),
    p99: at(sorted, 0.99),
    worst: sorted.at(-1),
    ...await ofKeptGames(server),
  }));
} finally {
  await server.stop();
}
