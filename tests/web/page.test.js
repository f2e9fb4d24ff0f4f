// The page in real browsers.

import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { join } from 'node:path';

import { pause } from './game.js';
import { areEqual } from './images.js';
import { fileOf, isMissing, root } from './server.js';
import { suite } from './suite.js';

/** Whether the cube, which is white, has left the middle of the field. */
const hasMoved = game => async () => (await game.colourAt(0.5, 0.5))[0] < 200;

/** A change of a script. */
const startingWith = text => script => Buffer.concat([Buffer.from(text), script]);

const watchSound = `globalThis.sounding = [];
  for (const name of ['AudioContext', 'Audio'])
    globalThis[name] = class extends globalThis[name] {
      constructor(...of) { super(...of); globalThis.sounding.push(this); }
    };`;

// What the page can be without: what it then says, what takes it away, the faults that come of it.
const unfetched = /fetch|import|load|abort/i;
const without = {
  WebGL: [/draws with WebGL/,
          { 'page.js': startingWith('HTMLCanvasElement.prototype.getContext = () => null;') }],
  WebAssembly: [/needs WebAssembly/, { 'page.js': startingWith('delete globalThis.WebAssembly;') }],
  'kov.wasm': [/could not be fetched/, { 'kov.wasm': isMissing }, unfetched],
  'kov.js': [/could not be fetched/, { 'kov.js': isMissing }, unfetched],
};
const withoutStorage = startingWith(`Object.defineProperty(globalThis, "indexedDB", {
  get() { throw new Error("refused"); } });`);

// Of the first game in the recording that kov_watch plays.
const record = 7115;
const wholeGame = 240000; // ms that it may take

suite('the page', (test, name) => {
  test('shows the menu, follows keys, keeps settings, fills the screen', async (game, page) => {
    const isFull = () => page.evaluate(() => document.fullscreenElement !== null);
    await game.open();
    await game.untilShows('menu');
    await game.untilSays(/^$/);
    assert.ok(!game.server.asked.some(path => path.startsWith('Songs/')), 'none before its time');
    await page.click('#full');
    await game.until(isFull, 'full screen by the button');
    await page.evaluate(() => document.exitFullscreen());
    await game.until(async () => !await isFull(), 'the window');

    const pages = (await page.browser().pages()).length;
    await game.press(' ', 'F1', 'PageDown', 'ArrowDown');
    assert.equal(await page.evaluate(() => scrollY), 0, 'no key scrolls');
    assert.equal((await page.browser().pages()).length, pages, 'no key opens anything');
    const menu = await game.picture();
    await game.press('Enter');
    await game.until(async () => !areEqual(menu, await game.picture()), 'the configuration');
    await game.press('ArrowDown', 'ArrowRight', 'ArrowUp', 'ArrowUp', 'ArrowUp', 'Enter'); // Save
    await game.until(() => game.kept('game.conf'), 'the settings in the database');
    await game.until(isFull, 'full screen by the setting');
  });

  /** Ends the program, starts it again, and has the game that it has kept proved. */
  async function proveKeptGame(game, page) {
    await game.press('ArrowUp', 'Enter'); // Exit
    await game.untilSays(/has ended/);
    await Promise.all([page.waitForNavigation(), page.click('#again')]);
    const link = await page.waitForSelector('#kept a');
    const verifier = join(root, 'build/release/replay/kov-replay-verify');
    const words = [await game.download(link), root];
    assert.match(execFileSync(verifier, words, { encoding: 'utf8' }), /: holds$/m);
    await page.click('#kept button::-p-text(Prove)');
    assert.match(await game.verdict(), /: holds$/m);
  }

  test('plays: a shot, a pause, the end by Escape; the game is kept', async (game, page) => {
    await game.open();
    await game.press('ArrowDown', 'Enter', 'ArrowUp', 'ArrowUp', 'ArrowUp', 'ArrowRight');
    await game.press('ArrowDown', 'Enter'); // Save CPU, Save
    await game.startLevel();
    await game.until(async () => (await game.press('d'), await game.colourAt(0.75, 0.5))[2] > 150,
                     'a line to the right');
    await game.press('p');
    await game.until(async () => !await game.shows('play'), 'the pause');
    const paused = await game.picture();
    await pause(500);
    assert.ok(areEqual(paused, await game.picture()), 'nothing moves in the pause');
    await game.press('p');
    await game.untilShows('play');
    await pause(4000); // more than a hundred ticks, after which the state is kept, too
    await game.press('Escape');
    await game.untilShows('menu');
    assert.ok(game.server.asked.some(path => path.startsWith('Songs/')), 'a song was fetched');
    const cells = () => page.$$eval('#kept td', list => list.map(cell => cell.textContent).join());
    await game.until(async () => /^[-\d]+ \d\d:\d\d,0,0:\d\d,/.test(await cells()),
                     'its date, score and length while the program goes on');
    await proveKeptGame(game, page);
  });

  test('a whole game: its record is there after a reload', async (game, page) => {
    const kept = async () => {
      const bytes = await game.kept('s.dat');
      return bytes && Buffer.from(bytes).readUInt32LE();
    };
    await game.open();
    const menu = await game.picture();
    game.server.changes.set('kov.js', () => fileOf('kov_watch.js'));
    await page.reload();
    await game.until(async () => await kept() === record, 'the record', wholeGame);
    game.server.changes.delete('kov.js');
    await page.reload();
    await game.firstPicture();
    await game.untilShows('menu');
    assert.ok(!areEqual(menu, await game.picture()), 'the menu shows it');
  }, { 'worker.js': isMissing });

  test('a hidden tab stands still in silence, and goes on', async (game, page) => {
    const hide = hidden => page.evaluate(now => {
      Object.defineProperty(document, 'hidden', { value: now, configurable: true });
      document.dispatchEvent(new Event('visibilitychange'));
    }, hidden);
    /** The output of effects, and the song. */
    const sounds = () => page.evaluate(() => globalThis.sounding.map(
      each => (each.state ? each.state === 'running' : !each.paused)));
    // Firefox plays no effects where there is no device for them.
    const areHeard = async () => (await sounds())[name === 'firefox' ? 'some' : 'every'](on => on);
    const areSilent = async () => !(await sounds()).some(on => on);
    await game.open();
    await game.startLevel();
    await game.until(async () => (await sounds()).length > 1, 'a song');
    await game.until(areHeard, 'effects and song to be heard');
    await hide(true);
    await game.until(areSilent, 'silence');
    const left = await page.evaluate(() => document.getElementById('screen').toDataURL());
    await pause(1000);
    assert.equal(await page.evaluate(() => document.getElementById('screen').toDataURL()), left);
    await hide(false);
    await game.until(areHeard, 'effects and song to go on');
    const first = await game.picture();
    await game.until(async () => !areEqual(first, await game.picture()), 'the game going on');
  }, { 'page.js': startingWith(watchSound) });

  test('a pad', async (game, page) => {
    await game.open();
    await page.evaluate(() => {
      const buttons = Array.from({ length: 17 }, () => ({ pressed: false }));
      window.pad = { connected: true, mapping: 'standard', axes: [0, 0, 0, 0], buttons };
      navigator.getGamepads = () => [null, window.pad];
    });
    const tap = async button => {
      for (const down of [true, false]) {
        await page.evaluate((i, on) => { window.pad.buttons[i].pressed = on; }, button, down);
        await pause(100);
      }
    };
    await tap(0); // South: Start Game
    await game.untilShows('play');
    await game.until(async () => (await tap(1), await game.colourAt(0.75, 0.5))[2] > 150,
                     'a line to the right');
    await page.evaluate(() => { window.pad.axes[0] = -1; });
    await game.until(hasMoved(game), 'the cube moving away');
    await tap(9); // Start: the pause
    await game.until(async () => !await game.shows('play'), 'the pause');
    await tap(9);
    await game.untilShows('play');
    await tap(8); // Back: the end
    await game.untilShows('menu');
  });

  test('a touch screen', async (game, page) => {
    const touch = async (...events) => {
      for (const [type, clientX, clientY] of events) {
        await page.$eval('#stage', (stage, ...of) => stage.dispatchEvent(new PointerEvent(...of)),
                         type, { pointerType: 'touch', bubbles: true, clientX, clientY });
        await pause(100);
      }
    };
    const tap = async (...place) => {
      const at = await game.inWindow(...place);
      await touch(['pointerdown', ...at], ['pointerup', ...at]);
    };
    const changes = (before, what) =>
      game.until(async () => !areEqual(before, await game.picture()), what);

    await game.open();
    const menu = await game.picture();
    await tap(-8, -3.7); // Configuration
    await changes(menu, 'the configuration');
    const settings = await game.picture();
    await tap(4, 9.3); // the resolution's value
    await changes(settings, 'a setting');
    await tap(-9, -0.7); // Cancel
    await game.untilShows('menu');
    await tap(-8, -1.7); // Start Game
    await game.untilShows('play');

    const [right, middle] = await game.inWindow(10, 0);
    await game.until(async () => {
      await touch(['pointerdown', right, middle], ['pointermove', right + 60, middle],
                  ['pointerup', right + 60, middle]);
      return (await game.colourAt(0.75, 0.5))[2] > 150;
    }, 'a line by a swipe to the right');
    const [left] = await game.inWindow(-12, 0);
    await touch(['pointerdown', left, middle], ['pointermove', left - 60, middle]);
    await game.until(hasMoved(game), 'the cube moving away');
    await touch(['pointerup', left - 60, middle]);
    await page.click('#pause');
    await game.until(async () => !await game.shows('play'), 'the pause');
    await page.click('#pause');
    await game.untilShows('play');
    await page.click('#leave');
    await game.untilShows('menu');
    await proveKeptGame(game, page); // touches are kept, too
  });

  test('a lost context comes back', async (game, page) => {
    await game.open();
    await game.untilShows('menu');
    await page.evaluate(() => {
      const gl = document.getElementById('screen').getContext('webgl');
      window.taker = gl.getExtension('WEBGL_lose_context');
      window.taker.loseContext();
    });
    await game.untilSays(/waits until it is back/);
    await page.evaluate(() => window.taker.restoreContext());
    await game.untilSays(/^$/);
    await game.untilShows('menu');
  });

  test('without storage it runs, and says so', async (game, page) => {
    await game.open();
    assert.match(await page.$eval('#note', note => note.innerText), /keeps nothing here/);
    await game.startLevel();
  }, { 'page.js': withoutStorage });

  for (const [what, [sentence, changes, expected]] of Object.entries(without))
    test(`without ${what} it says so`, async (game, page) => {
      await page.goto(game.server.address);
      await game.untilSays(sentence);
      game.faults = game.faults.filter(fault => !expected?.test(fault));
    }, changes);

  test('can be installed, and works without a connection', async (game, page) => {
    await game.open();
    await page.evaluate(async () => {
      await navigator.serviceWorker.ready;
      while (!navigator.serviceWorker.controller)
        await new Promise(resolve => { setTimeout(resolve, 50); });
    });
    if (name === 'chromium') { // the only one that tells
      const devTools = await page.createCDPSession();
      const { url, errors } = await devTools.send('Page.getAppManifest');
      assert.match(url, /kov\.webmanifest$/);
      assert.deepEqual(errors, []);
      const { installabilityErrors } = await devTools.send('Page.getInstallabilityErrors');
      assert.deepEqual(installabilityErrors.filter(
        ({ errorId }) => errorId !== 'in-incognito'), []); // as every test is
    }
    await game.server.stop();
    await page.reload();
    await game.firstPicture();
    await game.startLevel();
  });
});
