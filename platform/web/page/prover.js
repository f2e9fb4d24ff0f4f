// A worker that proves one kept game. It is sent the game's name and bytes and the program's code,
// and sends back that it is ready, how long the game is (ms), how far the proof is (percent), and
// what has come out: the program's exit code and what it has said, or that it has failed.

import createProver from './kov-prove.js';
import { startFrom } from './program.js';

const folder = '/game'; // what it says names the file as it was given: without a folder

self.onmessage = async ({ data: { name, bytes, code } }) => {
  const lines = [];
  const print = line => lines.push(line);
  const page = { showProgress: percent => postMessage({ percent }) };
  const program = await createProver({ ...startFrom(code), print, printErr: print, page });
  postMessage({ isReady: true });
  try {
    program.FS.mkdir(folder);
    program.FS.chdir(folder);
    program.FS.writeFile(name, bytes);
    postMessage({ length: program.ccall('kovLengthOf', 'number', ['string'], [name]) });
    const result = program.callMain(['--', name, '/kov']);
    postMessage({ result, text: lines.join('\n').replace(/^kov-replay: /, '') });
  } catch {
    postMessage({ hasFailed: true }); // a fault of the program's own, whatever it is
  }
};
