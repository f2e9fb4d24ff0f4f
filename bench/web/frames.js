// Plays the recorded game of kov_watch and measures its frames.

import createKov from './kov_watch.js';
import { Screen } from './screen.js';

const ticksASecond = 1000 / 30;

const nextPicture = () => new Promise(resolve => { requestAnimationFrame(resolve); });

/**
 * @param from, seconds of the game that are measured
 * @param before frames that are drawn before that
 * @returns ms of each
 */
window.measureFrames = async (from, seconds, before) => {
  const silent = new Proxy({}, { get: (_, name) => () =>
    ({ create: [0, 1], play: [0, 1], lengthOf: [0, 0] })[name] ?? 0 });
  const program = await createKov({
    page: {
      screen: new Screen(document.getElementById('screen')),
      sound: silent,
      clock: { now: () => 0 },
      showWindow() {},
      showTitle() {},
    },
    preRun: [({ FS }) => FS.chdir('/kov')],
  });
  const passes = Math.round(from * ticksASecond);
  for (let i = 0; i < passes - before; ++i) program._kovPass(false);
  const times = [];
  for (let i = 0; i < before + seconds * ticksASecond; ++i) {
    await nextPicture();
    const start = performance.now();
    program._kovPass(true);
    if (i >= before) times.push(performance.now() - start);
  }
  return times;
};
