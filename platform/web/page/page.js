// The page around the game: fetches it, gives it its passes, and shows what it draws.

import { Files } from './files.js';
import { keepsGames, showGames } from './games.js';
import { followKeys } from './keys.js';
import { followPads } from './pad.js';
import { Screen } from './screen.js';
import { Sound } from './sound.js';
import { followTouch } from './touch.js';

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

// Messages.

function say(text, again = false) {
  element('text').textContent = text;
  element('again').hidden = !again;
  element('message').hidden = false;
}

function unsay() {
  element('message').hidden = true;
}

function note(text) {
  element('note').textContent = text;
}

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

// The start.

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
    canvas,
    page,
    arguments: words,
    preRun: [program => {
      files.unpack(program.FS);
      program.FS.chdir('/kov');
      clock.start();
      onStart();
    }],
    print: text => console.log(text),
    printErr: text => console.warn(text),
  });
}

async function start() {
  if (typeof WebAssembly !== 'object') return say(failures.webAssembly);
  if (!page.screen.gl) return say(failures.webGL);
  let kov;
  let hasStarted = false;
  let hasPlayed = false;
  const files = new Files(
    () => note('This browser keeps nothing here: settings and high score will be lost.'),
    () => (hasPlayed ||= kov._kovIsPlaying()));
  await files.open();
  showGames(files, element('kept'), element('keep'));
  try {
    kov = await fetchProgram(files, () => { hasStarted = true; });
  } catch (error) {
    say(hasStarted ? failures.stopped : failures.fetch);
    throw error;
  }
  run(kov, files);
}

function followPlayer(kov) {
  const wake = () => {
    page.sound.wake();
    if (wantsFullScreen) enterFullScreen();
  };
  followKeys(kov._kovKey, () => [document.body, canvas].includes(document.activeElement), wake);
  followTouch(stage, element('touch'), kov, wake);
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
  const follow = () => loop.run(!document.hidden && !isLost);
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
  addEventListener('resize', fit);
  document.addEventListener('fullscreenchange', fit);
  follow();
}

function run(kov, files) {
  const loop = new Loop(kov, followPads(kov._kovButton, kov._kovAxis), text => {
    files.save();
    say(text, true);
    element('again').focus();
  });
  element('again').addEventListener('click', () => location.reload());
  followPlayer(kov);
  unsay();
  fit();
  canvas.focus();
  followPage(loop, files);
}

navigator.serviceWorker?.register('worker.js').catch(error => console.warn('KOV:', error));
start();
