// Damages kept games in as many ways as it is told to, and has each proved in a page, as a reader
// would: none may hang, or end in anything but a verdict. Prints a line for what does, and how many
// verdicts of each kind there were. Wants what tests/web/prepare.sh builds.
//   node fuzz/page_proofs.js [COUNT [SEED]]
// Half of them are whole files with a few bytes changed, which their checksums give away. The
// others are packed anew, so that what is wrong comes to the records' reader or to the game.

import { readFileSync, readdirSync } from 'node:fs';
import { join } from 'node:path';
import { constants, crc32, createInflate, deflateSync } from 'node:zlib';

import { launch } from '../tests/web/browsers.js';
import { root, Server } from '../tests/web/server.js';

const [count = 2000, seed = 1] = process.argv.slice(2).map(Number);
const longest = 10000; // ms
const headSize = 13, blockHeadSize = 12; // bytes
const mostChanges = 4; // in a mutant
const largestBlock = 64 << 10; // bytes, before compression

let state = seed >>> 0;
/** From 0 to below the bound (mulberry32). */
function random(bound) {
  state = (state + 0x6D2B79F5) >>> 0;
  let t = Math.imul(state ^ (state >>> 15), state | 1);
  t ^= t + Math.imul(t ^ (t >>> 7), t | 61);
  return ((t ^ (t >>> 14)) >>> 0) % bound;
}

/** All blocks' bytes, as they were before compression. */
function recordsOf(file) {
  const pieces = [];
  for (let at = headSize; at + blockHeadSize <= file.length;) {
    const size = file.readUInt32LE(at);
    pieces.push(file.subarray(at + blockHeadSize, at + blockHeadSize + size));
    at += blockHeadSize + size;
  }
  return new Promise(resolve => {
    const inflate = createInflate(), chunks = [];
    inflate.on('data', chunk => chunks.push(chunk));
    inflate.write(Buffer.concat(pieces), () => inflate.flush(() => resolve(Buffer.concat(chunks))));
  });
}

/** A file of one block, whose checksum is right. */
function pack(head, records) {
  const compressed = deflateSync(records, { level: 9, finishFlush: constants.Z_SYNC_FLUSH });
  const blockHead = Buffer.alloc(blockHeadSize);
  blockHead.writeUInt32LE(compressed.length, 0);
  blockHead.writeUInt32LE(records.length, 4);
  blockHead.writeUInt32LE(crc32(records), 8);
  return Buffer.concat([head, blockHead, compressed]);
}

function mutate(bytes) {
  let mutant = Buffer.from(bytes);
  for (let i = 0; i <= random(mostChanges); ++i) {
    const at = random(mutant.length + 1);
    const [before, after] = [mutant.subarray(0, at), mutant.subarray(at)];
    const some = Buffer.from(Array.from({ length: 1 + random(4) }, () => random(256)));
    mutant = Buffer.concat([
      [before, some.subarray(0, 1), after.subarray(1)],
      [before, some, after.subarray(some.length)],
      [before, some, after],
      [before, after.subarray(1 + random(16))],
    ][random(4)]);
  }
  return mutant;
}

const filesIn = folder => readdirSync(join(root, folder)).filter(name => !name.startsWith('.'))
  .map(name => readFileSync(join(root, folder, name)));

const games = filesIn('tests/recordings');
const head = games[0].subarray(0, headSize);
const unpacked = await Promise.all(games.map(recordsOf));
// An input of the fuzz target says by its first byte whether it is a file or what is in one.
const kept = filesIn('fuzz/corpus/replay_file').filter(input => input.length > 1);
const contentsOf = inputs => inputs.map(input => input.subarray(1));
const wholes = [...games, ...contentsOf(kept.filter(input => input[0] % 4 === 0))];
const records = [...unpacked, ...contentsOf(kept.filter(input => input[0] % 4 !== 0))];

function nextMutant(i) {
  if (i % 2 === 0) return mutate(wholes[random(wholes.length)]);
  const whole = records[random(records.length)];
  const undamaged = random(Math.min(whole.length, largestBlock / 2)); // what comes first stays
  const rest = mutate(whole.subarray(undamaged, largestBlock - 1024));
  return pack(head, Buffer.concat([whole.subarray(0, undamaged), rest]));
}

const server = await new Server().start();
const browser = await launch('chromium');
const page = await browser.newPage();
await page.goto(`${server.address}?prove=none`);
const verdicts = new Map();
let slowest = 0, findings = 0;
for (let i = 0; i < count; ++i) {
  const mutant = nextMutant(i);
  const { code, text, ms } = await page.evaluate(async base64 => {
    const { prove } = await import('./prove.js');
    const bytes = Uint8Array.from(atob(base64), character => character.charCodeAt(0));
    const start = performance.now();
    const outcome = await prove('mutant', bytes);
    return { ...outcome, ms: performance.now() - start };
  }, mutant.toString('base64'));
  const verdict = text.split('\n')[0].replace(/^mutant: (?:\d+ ticks.*?: (?=holds|differs))?/, '')
    .replace(/^differs.*: /, 'differs: ').replace(/[-\d.]+/g, 'N');
  verdicts.set(verdict, (verdicts.get(verdict) ?? 0) + 1);
  slowest = Math.max(slowest, ms);
  if (ms <= longest && !/has failed|ended after|be fetched/.test(text)) continue;
  ++findings;
  console.log(`${i}: ${Math.round(ms)} ms, exit code ${code}: ${text}`);
}
for (const [verdict, times] of [...verdicts].sort((a, b) => b[1] - a[1]))
  console.log(`${String(times).padStart(5)}  ${verdict}`);
console.log(`${count} mutants, ${findings} findings, ${Math.round(slowest)} ms at most`);
await browser.close();
await server.stop();
process.exitCode = findings === 0 ? 0 : 1;
