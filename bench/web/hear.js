// Plays the recorded game of kov_watch at its own pace, and takes down what is to be heard.

import createKov from './kov_watch.js';
import { Screen } from './screen.js';
import { Sound } from './sound.js';

const blockSize = 4096; // frames

const nextPicture = () => new Promise(resolve => { requestAnimationFrame(resolve); });

/** Every node that is connected to the output is also connected to what takes it down. */
function tap(context, blocks) {
  const recorder = context.createScriptProcessor(blockSize, 2, 2);
  recorder.onaudioprocess = ({ inputBuffer }) => {
    const [left, right] = [0, 1].map(i => inputBuffer.getChannelData(i));
    const block = new Int16Array(2 * left.length);
    left.forEach((value, i) => {
      block[2 * i] = Math.round(32767 * Math.max(-1, Math.min(1, value)));
      block[2 * i + 1] = Math.round(32767 * Math.max(-1, Math.min(1, right[i])));
    });
    blocks.push(block);
  };
  recorder.connect(context.destination);
  const { connect } = AudioNode.prototype;
  AudioNode.prototype.connect = function(to, ...more) {
    if (to === context.destination && this !== recorder) connect.call(this, recorder);
    return connect.call(this, to, ...more);
  };
}

/** @returns { rate, samples: of both sides in turn, in base64 } */
window.hear = async seconds => {
  const blocks = [];
  const sound = new Sound({
    isStopped: () => false,
    afterFirstPicture: action => action(),
    lacks: (path, error) => console.error(path, error),
  });
  const program = await createKov({
    page: {
      screen: new Screen(document.getElementById('screen')),
      sound,
      clock: { now: () => 0 },
      showWindow() {},
      showTitle() {},
    },
    preRun: [({ FS }) => FS.chdir('/kov')],
  });
  sound.wake();
  tap(sound.context, blocks);
  await new Promise(resolve => { setTimeout(resolve, 2000); }); // the effects are there
  blocks.length = 0;
  program._kovPass(false);
  const begun = performance.now(), from = program._kovWatchedClock();
  for (let elapsed = 0; elapsed < seconds * 1000; elapsed = performance.now() - begun) {
    while (program._kovWatchedClock() - from < elapsed) program._kovPass(false);
    await nextPicture();
  }
  const bytes = await new Blob(blocks).arrayBuffer();
  const reader = new FileReader();
  const url = await new Promise(resolve => {
    reader.onload = () => resolve(reader.result);
    reader.readAsDataURL(new Blob([bytes]));
  });
  return { rate: sound.context.sampleRate, samples: url.split(',')[1] };
};
