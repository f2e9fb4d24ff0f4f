// Writes a minute of what a recorded game sounds like in a page, to be laid beside the machine's
// own (kov-replay film).
//   node bench/web/record_sound.js OUTPUT.wav [seconds]

import { writeFileSync } from 'node:fs';

import { launch } from '../../tests/web/browsers.js';
import { Server } from '../../tests/web/server.js';

const [output, seconds = '60'] = process.argv.slice(2);
const headSize = 44, channels = 2, sampleBytes = 2;

function wav({ rate, samples }) {
  const data = Buffer.from(samples, 'base64');
  const head = Buffer.alloc(headSize);
  head.write('RIFF', 0);
  head.writeUInt32LE(data.length + headSize - 8, 4);
  head.write('WAVEfmt ', 8);
  head.writeUInt32LE(16, 16);
  head.writeUInt16LE(1, 20);
  head.writeUInt16LE(channels, 22);
  head.writeUInt32LE(rate, 24);
  head.writeUInt32LE(rate * channels * sampleBytes, 28);
  head.writeUInt16LE(channels * sampleBytes, 32);
  head.writeUInt16LE(8 * sampleBytes, 34);
  head.write('data', 36);
  head.writeUInt32LE(data.length, 40);
  return Buffer.concat([head, data]);
}

const server = await new Server().start();
const browser = await launch('chromium');
try {
  const page = await browser.newPage();
  page.on('console', message => console.error(message.text()));
  page.setDefaultTimeout(0);
  await page.goto(`${server.address}hear.html`);
  await page.waitForFunction(() => window.hear);
  await page.keyboard.press('a'); // only then may it be heard
  writeFileSync(output, wav(await page.evaluate(time => window.hear(time), Number(seconds))));
} finally {
  await browser.close();
  await server.stop();
}
