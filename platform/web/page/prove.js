// Proves kept games, each in a worker of its own, so that the page stays alive.

const shortest = 10000; // ms, for any game
const slowest = 1 / 10; // of the time that was played: a machine that can play proves far faster

/** What `kov-replay verify` ends with. */
const unusable = 2;

/**
 * @param onProgress called with the percentage that is done
 * @param signal ends it: then nothing comes any more
 * @returns the exit code of `kov-replay verify`, and what it says
 */
export function prove(name, bytes, { onProgress = () => {}, signal } = {}) {
  return new Promise(resolve => {
    const worker = new Worker(new URL('prover.js', import.meta.url), { type: 'module' });
    let timer;
    const end = () => {
      clearTimeout(timer);
      worker.terminate();
    };
    const say = (code, text) => {
      end();
      resolve({ code, text });
    };
    const complain = what => say(unusable, `${name}: ${what}`);
    const limit = ms => {
      clearTimeout(timer);
      timer = setTimeout(() => complain(
        `ended after ${Math.round(ms / 1000)} seconds: no game of its length takes that long`), ms);
    };
    const isMissing = () => complain('what proves games could not be fetched');

    signal?.addEventListener('abort', end);
    worker.onerror = isMissing;
    worker.onmessage = ({ data }) => {
      if (data.isMissing) isMissing();
      if (data.isReady) limit(shortest);
      if ('length' in data) limit(shortest + data.length * slowest);
      if ('percent' in data) onProgress(data.percent);
      if (data.hasFailed) complain('the game has failed');
      if ('code' in data) say(data.code, data.text);
    };
    worker.postMessage({ name, bytes });
  });
}
