// A worker that proves one kept game. It is sent the game's name and bytes, and sends back: `ready`,
// how long the game is (`length`, ms), how far the proof is (`percent`), and what has come out: the
// program's exit code and what it has said, or what has gone wrong.

import createProver from './kov-prove.js';

const folder = '/game'; // what it says names the file as it was given: without a folder

self.onmessage = async ({ data: { name, bytes } }) => {
  const lines = [];
  const print = line => lines.push(line);
  const page = { showProgress: percent => postMessage({ percent }) };
  let program;
  try {
    program = await createProver({ print, printErr: print, page });
  } catch {
    return postMessage({ isMissing: true });
  }
  postMessage({ isReady: true });
  try {
    program.FS.mkdir(folder);
    program.FS.chdir(folder);
    program.FS.writeFile(name, bytes);
    postMessage({ length: program.ccall('kovLengthOf', 'number', ['string'], [name]) });
    const code = program.callMain(['--', name, '/kov']);
    postMessage({ code, text: lines.join('\n').replace(/^kov-replay: /, '') });
  } catch {
    postMessage({ hasFailed: true }); // a fault of the program's own, whatever it is
  }
};
