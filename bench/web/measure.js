// What the page costs, as JSON: bytes that it fetches before the first song, ms from the navigation
// to the menu's first picture, ms of the page's thread a frame in a game's busiest half minute.
// Wants what tests/web/run.sh builds and installs.

import { gzipSync } from 'node:zlib';

import { launch } from '../../tests/web/browsers.js';
import { Game, pause } from '../../tests/web/game.js';
import { Server, fileOf } from '../../tests/web/server.js';

const starts = 7;
const busyFrom = 140, busyFor = 30; // seconds of the recorded game
const framesBefore = 100; // that the browser may take to make its code fast

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
  }));
} finally {
  await server.stop();
}
