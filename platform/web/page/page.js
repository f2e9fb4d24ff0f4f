// The page around the game: fetches it, gives it its passes, and shows what it draws.

import { Files } from './files.js';
import { Games, keepsGames, offerKeeping } from './games.js';
import { followKeys } from './keys.js';
import { note, say, unsay } from './message.js';
import { fetchGame, followFiles } from './opened.js';
import { followPads } from './pad.js';
import { codeOf, startFrom } from './program.js';
import { Proof } from './proof.js';
import { Screen } from './screen.js';
import { Sound } from './sound.js';
import { followTouch } from './touch.js';
import { timeText, Watching } from './watch.js';

const escape = 27; // SDL's symbol

const element = id => document.getElementById(id);
const stage = element('stage');
const canvas = element('screen');

// Width and height, as the game's menu has them.
const resolutions = [
  [640, 480], [720, 480], [720, 576], [800, 600], [960, 600], [1024, 768], [1088, 612],
  [1152, 864], [1280, 720], [1280, 768], [1280, 800], [1280, 960], [1280, 1024], [1366, 768],
  [1440, 900], [1440, 1050], [1600, 1024], [1600, 1200], [1680, 1050], [1920, 1080],
  [1920, 1200], [1920, 1440],
];

const failures = {
  webAssembly: 'KOV needs WebAssembly, and this browser has none or has it switched off.',
  webGL: 'KOV draws with WebGL, and this browser has none or has it switched off.',
  fetch: 'A part of KOV could not be fetched. Please check the connection and reload the page.',
  lost: 'The browser has taken the picture away for a moment. The game waits until it is back.',
  stopped: 'KOV has stopped with a fault of its own. Please reload the page.',
  ended: 'The game has ended.',
};

// The clock stands still while the game does.

const clock = {
  stoppedAt: 0, // else null
  lost: 0,
  now() {
    return (this.stoppedAt ?? performance.now()) - this.lost;
  },
  stop() {
    this.stoppedAt ??= performance.now();
  },
  start() {
    if (this.stoppedAt === null) return;
    this.lost += performance.now() - this.stoppedAt;
    this.stoppedAt = null;
  },
};

// The picture's size.

function fit() {
  if (!canvas.width) return;
  const scale = Math.min(stage.clientWidth / canvas.width, stage.clientHeight / canvas.height);
  canvas.style.width = `${Math.floor(canvas.width * scale)}px`;
  canvas.style.height = `${Math.floor(canvas.height * scale)}px`;
}

/** The largest that fits into the window, in the screen's own pixels. */
function firstResolution() {
  const width = stage.clientWidth * devicePixelRatio;
  const height = stage.clientHeight * devicePixelRatio;
  const fitting = resolutions.filter(size => size[0] <= width && size[1] <= height);
  return fitting.reduce((best, size) => (size[0] * size[1] > best[0] * best[1] ? size : best),
                        resolutions[0]);
}

// Full screen, by the button or by the game's own setting.

let wantsFullScreen = false; // of the setting, until a key lets it happen

function enterFullScreen() {
  if (!stage.requestFullscreen || document.fullscreenElement) return;
  stage.requestFullscreen().then(() => {
    wantsFullScreen = false;
    // Else the browser takes the key that leaves the game's pages.
    navigator.keyboard?.lock?.(['Escape']).catch(() => {});
  }, () => {});
}

function leaveFullScreen() {
  if (document.fullscreenElement) document.exitFullscreen().catch(() => {});
}

// What the program asks of the page.

const afterFirstPicture = [];
let firstPictureIsThere = false;

const page = {
  clock,
  screen: new Screen(canvas),
  isStopped: () => clock.stoppedAt !== null,
  showTitle: title => { document.title = title; },
  showWindow(width, height, fullScreen) {
    fit();
    if (fullScreen === wantsFullScreen) return;
    wantsFullScreen = fullScreen;
    if (fullScreen) enterFullScreen();
    else leaveFullScreen();
  },
  afterFirstPicture(action) {
    if (firstPictureIsThere) action();
    else afterFirstPicture.push(action);
  },
  lacks(path, reason) {
    console.warn(`KOV: ${path}:`, reason);
    note(`${path} could not be fetched and stays silent.`);
  },
};
page.sound = new Sound(page);

// The loop: a pass for each picture, and one between two pictures when the tick is due.

class Loop {
  constructor(kov, beforePass, onEnd) {
    Object.assign(this, { kov, beforePass, onEnd });
    this.isRunning = false;
  }

  run(on) {
    if (this.hasEnded || on === this.isRunning) return;
    this.isRunning = on;
    if (on) {
      clock.start();
      this.request = requestAnimationFrame(() => this.frame());
    } else {
      clock.stop();
      cancelAnimationFrame(this.request);
      clearTimeout(this.timer);
    }
    page.sound.follow();
  }

  frame() {
    this.request = requestAnimationFrame(() => this.frame());
    this.beforePass();
    this.pass(true);
    if (firstPictureIsThere) return;
    firstPictureIsThere = true;
    performance.mark('kov-first-picture');
    afterFirstPicture.forEach(action => action());
  }

  pass(seen) {
    clearTimeout(this.timer);
    try {
      if (!this.kov._kovPass(seen)) return this.end(failures.ended);
    } catch (error) {
      this.end(failures.stopped);
      throw error;
    }
    this.timer = setTimeout(() => this.pass(false), this.kov._kovTimeUntilTick());
  }

  end(text) {
    this.run(false);
    this.hasEnded = true;
    this.onEnd(text);
  }
}

// The player's own game.

const own = { // what every program is given
  canvas,
  print: text => console.log(text),
  printErr: text => console.warn(text),
};

/** @param onStart called before the program runs */
async function fetchProgram(files, onStart) {
  const { default: createKov } = await import('./kov.js');
  const words = [];
  if (files.db && keepsGames()) words.push('--keep-games');
  if (!files.has('game.conf')) { // as long as the player has chosen none
    const [width, height] = firstResolution();
    words.push(`--ScreenWidth=${width}`, `--ScreenHeight=${height}`);
  }
  return createKov({
    ...own,
    page,
    arguments: words,
    preRun: [program => {
      files.unpack(program.FS);
      program.FS.chdir('/kov');
      clock.start();
      onStart();
    }],
  });
}

async function play() {
  let kov;
  let hasStarted = false;
  let hasPlayed = false;
  let games = null; // until they can be measured
  const files = new Files(
    () => note('This browser keeps nothing here: settings and high score will be lost.'),
    () => (hasPlayed ||= kov._kovIsPlaying()),
    () => games?.show());
  await files.open();
  offerKeeping(element('keep'), files.db !== null);
  try {
    kov = await fetchProgram(files, () => { hasStarted = true; });
  } catch (error) {
    say(hasStarted ? failures.stopped : failures.fetch);
    throw error;
  }
  run(kov, files);
  games = new Games(files, element('kept'), {
    lengthOf: name => timeText(kov.ccall('kovLengthOf', 'number', ['string'], [`/kov/${name}`])),
    onWatch: watch,
    onProve: game => proof.open(game),
  });
  page.afterFirstPicture(() => games.show());
}

const hasKeys = () => [document.body, canvas].includes(document.activeElement);

function followPlayer(kov, loop) {
  const wake = () => {
    page.sound.wake();
    if (wantsFullScreen) enterFullScreen();
  };
  followKeys(kov._kovKey, () => loop.isRunning && hasKeys(), wake);
  followTouch(stage, element('touch'), kov, () => loop.isRunning, wake);
  element('full').addEventListener('click', () => {
    wake();
    if (document.fullscreenElement) leaveFullScreen();
    else enterFullScreen();
    canvas.focus();
  });
}

/** The loop runs while the page is seen and there is something to draw on. */
function followPage(loop, files) {
  let isLost = false;
  const follow = () => loop.run(!document.hidden && !isLost && !isHeld);
  player.follow = follow;
  document.addEventListener('visibilitychange', () => {
    follow();
    files.save();
  });
  canvas.addEventListener('webglcontextlost', event => {
    event.preventDefault(); // so that it may come back
    isLost = true;
    follow();
    say(failures.lost);
  });
  canvas.addEventListener('webglcontextrestored', () => {
    isLost = false;
    unsay();
    follow();
  });
  document.addEventListener('fullscreenchange', fit);
  follow();
}

function run(kov, files) {
  const loop = new Loop(kov, followPads(kov._kovButton, kov._kovAxis), text => {
    files.save();
    say(text, true);
    element('again').focus();
  });
  followPlayer(kov, loop);
  unsay();
  fit();
  canvas.focus();
  followPage(loop, files);
}

// Watching and proving. The player's own game stands still meanwhile.

let isHeld = false;
const player = { follow() {} };
let watching = null;

/** @param on while a proof takes the picture's place */
function hold(on) {
  scrollTo(0, 0);
  isHeld = on || watching !== null;
  player.follow();
  watching?.hold(on);
}

const proof = new Proof(element('proof'), {
  onOpen: () => hold(true),
  onClose: () => (isAlone() ? leave() : hold(false)),
  onWatch: watch,
});

/** Whether there is nothing on the page but the proof. */
const isAlone = () => watching === null && asked.has('prove');

const leave = () => location.replace(location.pathname);

async function createWatched(options) {
  const { default: createKov } = await import('./kov.js');
  return createKov({ ...own, ...startFrom(await codeOf('kov.wasm')), ...options });
}

function watch(game) {
  if (!page.screen.gl) return say(failures.webGL, true);
  watching?.end();
  const refuse = text => {
    watching.end();
    say(text, true);
  };
  watching = new Watching(game, element('watch'), {
    page,
    createProgram: createWatched,
    onRefusal: refuse,
    onFault: (error, isThere) => {
      refuse(isThere ? failures.stopped : failures.fetch);
      throw error;
    },
  });
  hold(false);
  unsay();
  document.body.classList.add('watching');
  element('touch').hidden = true;
  fit();
  canvas.focus();
  watching.begin();
}

/** @param opened a promise of a game */
async function open(opened) {
  try {
    const game = await opened;
    proof.hide();
    watch(game);
  } catch (error) {
    note(error.message);
  }
}

function followWatcher() {
  followKeys((symbol, down) => down && (symbol === escape ? leave() : watching.press(symbol)),
             () => watching !== null && !watching.isHeld && hasKeys(), () => {});
  element('watch').querySelector('[name=leave]').addEventListener('click', leave);
  element('watch').querySelector('[name=prove]')
    .addEventListener('click', () => proof.open(watching.game));
  addEventListener('resize', fit);
  followFiles(element('open'), element('file'), open);
}

async function openAsked(name, show, refuse) {
  let game;
  try {
    game = await fetchGame(name);
  } catch (error) {
    return refuse(error.message);
  }
  show(game);
}

// The start.

const asked = new URLSearchParams(location.search);

function start() {
  element('again').addEventListener('click', leave);
  if (typeof WebAssembly !== 'object') return say(failures.webAssembly);
  followWatcher();
  if (asked.has('prove')) {
    unsay();
    return openAsked(asked.get('prove'), game => proof.open(game), text => proof.refuse(text));
  }
  if (!page.screen.gl) return say(failures.webGL);
  if (asked.has('watch')) return openAsked(asked.get('watch'), watch, text => say(text, true));
  return play();
}

navigator.serviceWorker?.register('worker.js').catch(error => console.warn('KOV:', error));
start();
