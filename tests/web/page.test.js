// The page in real browsers.

import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { join } from 'node:path';

import { pause } from './game.js';
import { areEqual } from './images.js';
import { root } from './server.js';
import { suite } from './suite.js';

/** Whether the cube, which is white, has left the middle of the field. */
const hasMoved = game => async () => (await game.colourAt(0.5, 0.5))[0] < 200;

// Scripts in front of the page's own.
const watchSound = `globalThis.sounding = [];
  for (const name of ['AudioContext', 'Audio'])
    globalThis[name] = class extends globalThis[name] {
      constructor(...of) { super(...of); globalThis.sounding.push(this); }
    };`;
const without = {
  storage: `Object.defineProperty(globalThis, "indexedDB", {
    get() { throw new Error("refused"); } });`,
  webGL: 'HTMLCanvasElement.prototype.getContext = () => null;',
  webAssembly: 'delete globalThis.WebAssembly;',
};

// Of the first game in the recording that kov_watch plays.
const record = 7115;
const wholeGame = 240000; // ms that it may take

suite('the page', ({ name, test, shot }) => {
  test('loads, and shows the menu', async (game, page) => {
    await game.open();
    await game.untilShows('menu');
    assert.equal(await page.title(), 'KOV');
    assert.equal(await game.message(), '');
    assert.ok(!game.server.asked.some(path => path.startsWith('Songs/')), 'none before its time');
    await shot(page, 'menu');
  });

  test('follows keys through the menu, and keeps the settings', async (game, page) => {
    const pages = (await page.browser().pages()).length;
    await game.open();
    await game.press('ArrowDown');
    const menu = await game.picture();
    await game.press('Enter');
    await game.until(async () => !areEqual(menu, await game.picture()), 'the configuration');
    await shot(page, 'configuration');
    await game.press('ArrowUp', 'ArrowUp', 'Enter'); // over the end to Save
    await game.until(() => game.kept('game.conf'), 'the settings in the database');
    await game.press(' ', 'F1', 'PageDown', 'ArrowDown');
    assert.equal(await page.evaluate(() => scrollY), 0, 'no key scrolls');
    assert.equal((await page.browser().pages()).length, pages, 'no key opens anything');
  });

  test('plays: a shot, a pause, the end by Escape', async (game, page) => {
    await game.open();
    await game.startLevel();
    await game.until(async () => (await game.press('d'), await game.colourAt(0.75, 0.5))[2] > 150,
                     'a line to the right');
    await shot(page, 'play');
    await game.press('p');
    await game.until(async () => !await game.shows('play'), 'the pause');
    const paused = await game.picture();
    await shot(page, 'pause');
    await pause(500);
    assert.ok(areEqual(paused, await game.picture()), 'nothing moves in the pause');
    await game.press('p');
    await game.untilShows('play');
    await game.press('Escape');
    await game.untilShows('menu');
    assert.ok(game.server.asked.some(path => path.startsWith('Songs/')), 'a song was fetched');
  });

  test('a whole game: its record is there after a reload', async (game, page) => {
    const kept = async () => {
      const bytes = await game.kept('s.dat');
      return bytes && Buffer.from(bytes).readUInt32LE();
    };
    await game.open();
    const menu = await game.picture();
    game.server.others.set('kov.js', 'kov_watch.js');
    await page.reload();
    await game.until(async () => await kept() === record, 'the record', wholeGame);
    game.server.others.clear();
    await page.reload();
    await game.firstPicture();
    await game.untilShows('menu');
    assert.ok(!areEqual(menu, await game.picture()), 'the menu shows it');
    await shot(page, 'record');
  }, { worker: false });

  /** Ends the program, starts it again, and has the game that it has kept proved. */
  async function proveKeptGame(game, page) {
    await game.press('ArrowUp', 'Enter'); // Exit
    await game.untilSays(/has ended/);
    await Promise.all([page.waitForNavigation(), page.click('#again')]);
    const link = await page.waitForSelector('#kept a');
    const verifier = join(root, 'build/release/replay/kov-replay-verify');
    const words = [await game.download(link), root];
    assert.match(execFileSync(verifier, words, { encoding: 'utf8' }), /: holds$/m);
    await game.pressButton('#kept', 'Prove');
    assert.match(await game.verdict(), /: holds$/m);
  }

  test('a kept game is listed with its score, and holds', async (game, page) => {
    await game.open();
    await game.press('ArrowDown', 'Enter', 'ArrowUp', 'ArrowUp', 'ArrowUp', 'ArrowRight');
    await game.press('ArrowDown', 'Enter'); // Save CPU, Save
    await game.startLevel();
    await game.press('d', 'w', 'ArrowLeft');
    await pause(4000); // more than a hundred ticks, after which the state is kept, too
    await game.press('Escape');
    await game.untilShows('menu');
    const cells = () => page.$$eval('#kept td', list => list.map(cell => cell.textContent).join());
    await game.until(async () => /^[-\d]+ \d\d:\d\d,0,0:0\d,/.test(await cells()),
                     'its date, score and length while the program goes on');
    await proveKeptGame(game, page);
  });

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
  }, { prelude: watchSound });

  test('a pad', async (game, page) => {
    await game.open();
    await page.evaluate(() => {
      const buttons = Array.from({ length: 17 }, () => ({ pressed: false }));
      window.pad = { connected: true, mapping: 'standard', axes: [0, 0, 0, 0], buttons };
      navigator.getGamepads = () => [null, window.pad];
      window.tap = async i => {
        window.pad.buttons[i].pressed = true;
        await new Promise(resolve => { setTimeout(resolve, 100); });
        window.pad.buttons[i].pressed = false;
        await new Promise(resolve => { setTimeout(resolve, 100); });
      };
    });
    const tap = button => page.evaluate(i => window.tap(i), button);
    await tap(0); // South: Start Game
    await game.untilShows('play');
    await game.until(async () => (await tap(1), await game.colourAt(0.75, 0.5))[2] > 150,
                     'a line to the right');
    await page.evaluate(() => { window.pad.axes[0] = -1; });
    await game.until(hasMoved(game), 'the cube moving away');
    await tap(9); // Start: the pause
    await game.until(async () => !await game.shows('play'), 'the pause');
    await tap(9);
    await tap(8); // Back: the end
    await game.untilShows('menu');
  });

  test('a touch screen', async (game, page) => {
    /** @param events type, and place in the window */
    const touch = (...events) => page.evaluate(async list => {
      for (const [type, clientX, clientY] of list) {
        document.getElementById('stage').dispatchEvent(new PointerEvent(type, {
          pointerType: 'touch', pointerId: 1, bubbles: true, clientX, clientY }));
        await new Promise(resolve => { setTimeout(resolve, 100); });
      }
    }, events);
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
    await shot(page, 'touch');

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
    await page.click('#leave');
    await game.untilShows('menu');
    await proveKeptGame(game, page); // touches are kept, too
  });

  test('full screen by the button', async (game, page) => {
    await game.open();
    const isFull = () => page.evaluate(() => document.fullscreenElement !== null);
    await page.click('#full');
    await game.until(isFull, 'full screen');
    await page.evaluate(() => document.exitFullscreen());
    await game.until(async () => !await isFull(), 'the window');
    await game.startLevel();
  });

  test('full screen by the setting', async (game, page) => {
    await game.open();
    await game.press('ArrowDown', 'Enter', 'ArrowDown', 'ArrowRight');
    await game.press('ArrowUp', 'ArrowUp', 'ArrowUp', 'Enter'); // over the end to Save
    await game.until(() => page.evaluate(() => document.fullscreenElement !== null),
                     'full screen');
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

  test('without storage it runs, and says so', async (game) => {
    await game.open();
    assert.match(await game.note(), /keeps nothing here/);
    await game.startLevel();
  }, { prelude: without.storage });

  for (const [what, sentence] of [['webGL', /draws with WebGL/],
                                  ['webAssembly', /needs WebAssembly/]])
    test(`without ${what} it says so`, async (game, page) => {
      await page.goto(game.server.address);
      await game.untilSays(sentence);
    }, { prelude: without[what] });

  for (const file of ['kov.wasm', 'kov.js'])
    test(`without ${file} it says so`, async (game, page) => {
      await page.goto(game.server.address);
      await game.untilSays(/could not be fetched/);
      game.faults = game.faults.filter(fault => !/fetch|import|load|abort/i.test(fault));
    }, { missing: [file] });

  test('works without a connection after the first visit', async (game, page) => {
    await game.open();
    await page.evaluate(async () => {
      await navigator.serviceWorker.ready;
      while (!navigator.serviceWorker.controller)
        await new Promise(resolve => { setTimeout(resolve, 50); });
    });
    await game.server.stop();
    await page.reload();
    await game.firstPicture();
    await game.startLevel();
  });

  if (name === 'chromium') // the only one that tells
    test('can be installed', async (game, page) => {
      await game.open();
      await page.evaluate(() => navigator.serviceWorker.ready);
      const devTools = await page.createCDPSession();
      const { url, errors } = await devTools.send('Page.getAppManifest');
      assert.match(url, /kov\.webmanifest$/);
      assert.deepEqual(errors, []);
      const { installabilityErrors } = await devTools.send('Page.getInstallabilityErrors');
      assert.deepEqual(installabilityErrors.filter(
        ({ errorId }) => errorId !== 'in-incognito'), []); // as every test is
    });

  test('"Exit" offers to start again', async (game, page) => {
    await game.open();
    await game.press('ArrowUp', 'Enter');
    await game.untilSays(/has ended/);
    await Promise.all([page.waitForNavigation(), page.click('#again')]);
    await game.firstPicture();
    await game.untilShows('menu');
  });
});
