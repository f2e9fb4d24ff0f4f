// Runs the programs that make pictures, in a page. They take no time from the clock.

import { Screen } from './screen.js';

const screen = new Screen(document.getElementById('screen'));

const toBase64 = bytes => new Promise(resolve => {
  const reader = new FileReader();
  reader.onload = () => resolve(reader.result.split(',')[1]);
  reader.readAsDataURL(new Blob([bytes]));
});

/**
 * @param program name of its script
 * @param words its arguments; pictures are to go into /pictures
 * @returns the pictures in base64, by file name
 */
window.makePictures = async (program, words) => {
  const { default: create } = await import(`./${program}.js`);
  const running = await create({
    page: { screen, clock: { now: () => 0 }, showWindow() {}, showTitle() {} },
    printErr: text => console.warn(text),
  });
  const { FS } = running;
  FS.mkdir('/pictures');
  FS.chdir('/kov');
  running.callMain(words);
  const pictures = {};
  for (const name of FS.readdir('/pictures'))
    if (!name.startsWith('.')) pictures[name] = await toBase64(FS.readFile(`/pictures/${name}`));
  return pictures;
};

document.title = 'Ready';
