// The picture in a page is that of the game itself.

import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { mkdirSync, mkdtempSync, readdirSync, readFileSync, rmSync, symlinkSync,
         writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { basename, join } from 'node:path';
import { after, before, describe, it } from 'node:test';

import { launch } from './browsers.js';
import { compare, fromPpm, missing, toPng } from './images.js';
import { root, Server } from './server.js';

const recording = 'tests/recordings/long-evening.kovreplay';
const ticks = [2450, 8650, 11600]; // in each of its three games
const size = [800, 600];

const tolerance = 24; // of 255, of each colour
const leastEqual = 0.995; // of all pixels

const programs = join(root, 'build/release/tests/web');
const results = join(root, 'build/web-tests'); // for people to look at

/**
 * Runs a program among the game's files.
 * @param wordsFor its arguments, given the folder for its pictures
 */
function byMachine(program, wordsFor) {
  const folder = mkdtempSync(join(tmpdir(), 'kov-pictures-'));
  for (const name of ['data', 'fonts', 'textures'])
    symlinkSync(join(root, name), join(folder, name));
  for (const name of ['Songs', 'pictures']) mkdirSync(join(folder, name));
  const made = join(folder, 'pictures');
  execFileSync(join(programs, program), wordsFor(made), { cwd: folder, stdio: 'ignore' });
  const pictures = Object.fromEntries(readdirSync(made).map(name =>
    [basename(name, '.ppm'), fromPpm(readFileSync(join(made, name)))]));
  rmSync(folder, { recursive: true });
  return pictures;
}

describe('pictures in a page and by the machine', () => {
  let server, browser, page;

  before(async () => {
    mkdirSync(results, { recursive: true });
    server = await new Server().start();
    browser = await launch('chromium');
    page = await browser.newPage();
  });
  after(async () => {
    await browser?.close();
    await server?.stop();
  });

  async function inPage(program, words, files = []) {
    await page.goto(`${server.address}pictures.html`);
    await page.waitForFunction(() => window.makePictures);
    const made = await page.evaluate((...of) => window.makePictures(...of), program, words, files);
    return Object.fromEntries(Object.entries(made).map(([name, data]) =>
      [basename(name, '.ppm'), fromPpm(Buffer.from(data, 'base64'))]));
  }

  function check(name, ours, pages) {
    const { equal, picture } = compare(ours, pages, tolerance);
    for (const [kind, each] of Object.entries({ machine: ours, page: pages, difference: picture }))
      writeFileSync(join(results, `${name}-${kind}.png`), toPng(each));
    console.log(`${name}: ${(100 * equal).toFixed(3)} % equal`);
    assert.ok(equal >= leastEqual, `${name}: only ${equal} of the pixels are equal`);
    assert.equal(missing(ours, pages, tolerance), 0, `${name}: something is missing`);
    assert.equal(missing(pages, ours, tolerance), 0, `${name}: something has been added`);
  }

  it('three moments of a recorded game', async () => {
    const words = ticks.map(String);
    const ours = byMachine('kov_moments',
                           folder => [join(root, recording), root, folder, ...words]);
    const pages = await inPage('kov_moments',
                               [`/${basename(recording)}`, '/kov', '/pictures', ...words],
                               [recording]);
    for (const tick of words) check(`tick-${tick}`, ours[tick], pages[tick]);
  });

  it('figures that play seldom shows', async () => {
    const words = size.map(String);
    const ours = byMachine('kov_figures', folder => [folder, ...words]);
    const pages = await inPage('kov_figures', ['/pictures', ...words]);
    check('figures', ours.figures, pages.figures);
  });

  const scenes = { pages: ['menu', 'help', 'about', 'config'], verdicts: ['game-over'] };
  for (const [scene, names] of Object.entries(scenes))
    it(`scene "${scene}"`, async () => {
      const words = size.map(String);
      const ours = byMachine('gallery/gallery', folder => [scene, folder, ...words]);
      const pages = await inPage('gallery', [scene, '/pictures', ...words]);
      for (const name of names) check(name, ours[name], pages[name]);
    });
});
