// The picture in a page is that of the game itself.

import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { mkdirSync, mkdtempSync, readdirSync, readFileSync, rmSync, symlinkSync,
         writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { basename, join } from 'node:path';
import { PNG } from 'pngjs';

import { fromPpm, shareOf } from './images.js';
import { root } from './server.js';
import { results, suite } from './suite.js';

// Programs, and their words in front of the folder: what the game shows, and what play seldom does.
const all = [['kov_figures'], ...['pages', 'verdicts', 'fence', 'power-ups', 'death'].map(
  scene => ['gallery/gallery', scene])];
const size = ['800', '600'];

const leastEqual = 0.995; // of all pixels
const near = 3; // pixels

/** Runs a program among the game's files. */
function byMachine(program, ...words) {
  const folder = mkdtempSync(join(tmpdir(), 'kov-pictures-'));
  for (const name of ['data', 'fonts', 'Songs', 'textures'])
    symlinkSync(join(root, name), join(folder, name));
  const made = join(folder, 'pictures');
  mkdirSync(made);
  execFileSync(join(root, 'build/release/tests/web', program), [...words, made, ...size],
               { cwd: folder, stdio: 'ignore' });
  const pictures = readdirSync(made).map(name => [name, fromPpm(readFileSync(join(made, name)))]);
  rmSync(folder, { recursive: true });
  return pictures;
}

function check(name, ours, pages) {
  for (const [kind, picture] of Object.entries({ machine: ours, page: pages }))
    writeFileSync(join(results, `${name}-${kind}.png`), PNG.sync.write(picture));
  const equal = shareOf(ours, pages);
  console.log(`${name}: ${(100 * equal).toFixed(3)} % equal`);
  assert.ok(equal >= leastEqual, `${name}: only ${equal} of the pixels are equal`);
  assert.equal(shareOf(ours, pages, near), 1, `${name}: something is missing`);
  assert.equal(shareOf(pages, ours, near), 1, `${name}: something has been added`);
}

suite('pictures in a page and by the machine', test => {
  for (const [program, ...words] of all)
    test([basename(program), ...words].join(' '), async (game, page) => {
      await page.goto(`${game.server.address}pictures.html`);
      await page.waitForFunction(() => window.makePictures);
      const pages = await page.evaluate((...of) => window.makePictures(...of), basename(program),
                                        [...words, '/pictures', ...size]);
      for (const [name, picture] of byMachine(program, ...words))
        check(basename(name, '.ppm'), picture, fromPpm(Buffer.from(pages[name], 'base64')));
    });
}, ['chromium']);
