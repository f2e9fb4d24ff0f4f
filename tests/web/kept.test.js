// Kept games in real browsers: proved, watched, and compared on a page of the best.

import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { cpSync, mkdtempSync, readFileSync, renameSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';

import { pause } from './game.js';
import { areEqual, fromPng } from './images.js';
import { root, site, Server } from './server.js';
import { suite } from './suite.js';

const recordings = join(root, 'tests/recordings');
const one = 'one-game.kovreplay';
const rulesAt = 12; // the place of the rule set in a file

// What is made of a file, and what is said of it, in the same words as elsewhere.
const spoilt = [
  [bytes => (bytes[rulesAt] ^= 64, bytes), /: the game was played by the rules of an/],
  [bytes => bytes.subarray(0, -9), /: holds, but is cut off here\n/],
  [() => Buffer.alloc(0), /: this is no replay of KOV$/],
];

const markup = '<img src=x onerror=document.title=1>'; // as a file's name

const place = page => page.$eval('#watch [name=seek]', element => Number(element.value));

suite('kept games', test => {
  const prove = async (game, name) => {
    await game.page.goto(`${game.server.address}?prove=${encodeURIComponent(name)}`);
    return game.verdict();
  };

  test('what is wrong with a file or its name is said, as text alone', async (game, page) => {
    for (const [spoil, words] of spoilt) {
      game.server.changes.set(one, spoil);
      assert.match(await prove(game, one), words);
    }
    for (const name of ['../x.kovreplay', 'https://localhost/x.kovreplay', 'page.js',
                        `${markup}.kovreplay`])
      assert.match(await prove(game, name), /: no such file, or none that can be read$/);
    assert.equal(await page.$('#verdict *'), null);
  });

  test('a proof without an end is ended', async (game, page) => {
    await page.goto(`${game.server.address}?prove=${one}`);
    await pause(2000);
    await page.evaluate(() => new Promise(requestAnimationFrame)); // the page stays alive
    assert.match(await game.verdict(), /: ended after 10 seconds/);
  }, { 'prover.js': () => Buffer.from(
    'self.onmessage = () => { postMessage({ isReady: true }); for (;;); };') });

  const status = page => page.$eval('#watch [name=end]', element => element.textContent);
  const drag = (page, ms) => page.$eval('#watch [name=seek]', (element, value) => {
    element.value = value;
    for (const type of ['input', 'change']) element.dispatchEvent(new Event(type));
  }, ms);
  const pictureAt = async (game, ms) => {
    await drag(game.page, ms);
    const isThere = async () => Math.abs(await place(game.page) - ms) < 500 &&
      await status(game.page) === '';
    await game.until(isThere, `the place ${ms}`);
    return fromPng(await (await game.page.$('#screen')).screenshot({ encoding: 'base64' }));
  };

  test('one is watched: stopped, stepped, faster, any place the same', async (game, page) => {
    await page.goto(`${game.server.address}?watch=${one}`);
    await game.until(async () => await place(page) > 1000, 'the game going on');
    await page.click('#screen'); // or a tap
    const stopped = await place(page);
    await pause(300);
    assert.equal(await place(page), stopped);
    for (let i = 0; i < 5; ++i) await game.press('ArrowRight');
    assert.ok(await place(page) > stopped, 'steps');
    const before = await pictureAt(game, 60000);
    await pictureAt(game, 140000);
    assert.ok(areEqual(await pictureAt(game, 60000), before), 'the picture is as before');
    await game.press(' ', 'ArrowUp', 'ArrowUp', 'ArrowUp');
    await game.until(async () => await place(page) > 70000, 'eight times as fast', 5000);
    await drag(page, 149000);
    await game.until(async () => await status(page) === 'the end', 'the end');
  });

  test('one is dropped on the page, watched and proved, and left again', async (game, page) => {
    await game.open();
    const bytes = readFileSync(join(recordings, one)).toString('base64');
    await page.evaluate((name, base64) => {
      const dataTransfer = new DataTransfer();
      dataTransfer.items.add(new File([Uint8Array.from(atob(base64), c => c.charCodeAt(0))], name));
      dispatchEvent(new DragEvent('drop', { dataTransfer, cancelable: true }));
    }, `${markup}.kovreplay`, bytes);
    await game.until(async () => await place(page) > 500, 'the game going on');
    await page.click('#watch [name=prove]');
    assert.match(await game.verdict(), /onerror.*: holds\n/);
    assert.equal(await page.$('#verdict *'), null);
    await page.click('#proof .close');
    await Promise.all([page.waitForNavigation(), page.click('#watch [name=leave]')]);
    await game.firstPicture();
    await game.untilShows('menu');
  });

  test('a page of the best is proved by whoever reads it', async (game, page) => {
    const folder = mkdtempSync(join(tmpdir(), 'kov-table-'));
    const replays = join(folder, 'replays');
    cpSync(recordings, replays, { recursive: true });
    renameSync(join(replays, 'first-steps.kovreplay'), join(replays, "it's 1 <b>.kovreplay"));
    execFileSync(join(root, 'build/release/replay/kov-replay'),
                 ['--data', root, 'best', replays, '--page', folder, '--with-web', site]);
    const table = await new Server(folder).start();
    try {
      await page.goto(table.address);
      await page.$eval('article:nth-of-type(2) h2', h2 => { h2.textContent = '2. 99999 points'; });
      await page.click('#check button');
      await page.waitForFunction(() => !document.querySelector('#check button').disabled,
                                 { timeout: 90000 });
      const marks = await page.$$eval('.mark', list => list.map(mark => mark.textContent));
      assert.deepEqual(marks.map(([mark]) => mark), marks.map((_, i) => '✓✗'[Number(i === 1)]),
                       marks.join('\n'));
      const link = await page.$(`[data-file^="it's"] .check a:last-of-type`);
      await Promise.all([page.waitForNavigation(), link.click()]);
      assert.match(await game.verdict(), /^it's 1 <b>.*: holds\n {2}game 1: /);
      await page.click('#proof .watch');
      await game.until(async () => await place(page) > 500, 'the game going on');
    } finally {
      await table.stop();
      rmSync(folder, { recursive: true });
    }
  });
});
