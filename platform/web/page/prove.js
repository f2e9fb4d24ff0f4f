// Proves kept games, each in a worker of its own, so that the page stays alive.

import { codeOf } from './program.js';

// ms that a proof may take: some for any game, and a share of the time that was played, as a
// machine that can play proves far faster. A file may claim to be of any length.
const shortest = 10000, longest = 600000;
const share = 1 / 10;

/** What `kov-replay verify` ends with. */
const unusable = 2;

const program = 'kov-prove.wasm';

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
      if (data.isReady) limit(shortest);
      if ('length' in data) limit(Math.min(shortest + data.length * share, longest));
      if ('percent' in data) onProgress(data.percent);
      if (data.hasFailed) complain('the game has failed');
      if ('result' in data) say(data.result, data.text);
    };
    limit(longest);
    codeOf(program).then(code => worker.postMessage({ name, bytes, code }), isMissing);
  });
}
