// Pictures as { width, height, data }, data being RGBA from the top.

import { PNG } from 'pngjs';

const near = 3; // pixels

export function fromPng(base64) {
  return PNG.sync.read(Buffer.from(base64, 'base64'));
}

/** Of a binary PPM. */
export function fromPpm(bytes) {
  const head = /^P6\n(\d+) (\d+)\n255\n/.exec(bytes.subarray(0, 32).toString('latin1'));
  const picture = new PNG({ width: Number(head[1]), height: Number(head[2]) });
  for (let i = 0, from = head[0].length; i < picture.width * picture.height; ++i, from += 3)
    picture.data.set([bytes[from], bytes[from + 1], bytes[from + 2], 255], 4 * i);
  return picture;
}

export function toPng(picture) {
  return PNG.sync.write(picture);
}

/** Of red, green or blue, the most that two colours differ by. */
function distance(a, b, i) {
  return Math.max(Math.abs(a[i] - b[i]), Math.abs(a[i + 1] - b[i + 1]),
                  Math.abs(a[i + 2] - b[i + 2]));
}

/** The share of pixels that differ by no more than `tolerance`, and a picture of what differs. */
export function compare(a, b, tolerance) {
  const picture = new PNG({ width: a.width, height: a.height });
  let equal = 0;
  for (let i = 0; i < a.data.length; i += 4) {
    if (distance(a.data, b.data, i) <= tolerance) ++equal;
    for (let k = 0; k < 3; ++k) picture.data[i + k] = Math.abs(a.data[i + k] - b.data[i + k]);
    picture.data[i + 3] = 255;
  }
  return { equal: equal * 4 / a.data.length, picture };
}

/** By pixel, whether it is more than the ground: the colour that most of a picture has. */
function lit(picture, tolerance) {
  const words = new Uint32Array(picture.data.buffer, picture.data.byteOffset,
                                picture.data.length / 4);
  const counts = new Map();
  for (const word of words) counts.set(word, (counts.get(word) ?? 0) + 1);
  const most = [...counts].reduce((best, each) => (each[1] > best[1] ? each : best))[0];
  const ground = new Uint8Array(Uint32Array.of(most).buffer);
  return Array.from(words, (_, i) =>
    distance(picture.data.subarray(4 * i, 4 * i + 4), ground, 0) > tolerance);
}

/** Counts what of `a` has nothing of `b` near it. */
export function missing(a, b, tolerance) {
  const there = lit(b, tolerance);
  const hasNear = (x, y) => {
    for (let v = Math.max(0, y - near); v <= Math.min(b.height - 1, y + near); ++v)
      for (let u = Math.max(0, x - near); u <= Math.min(b.width - 1, x + near); ++u)
        if (there[v * b.width + u]) return true;
    return false;
  };
  return lit(a, tolerance).filter((on, i) =>
    on && !hasNear(i % a.width, Math.floor(i / a.width))).length;
}

const unnoticed = 24; // of 255

/** To the eye. */
export const areEqual = (a, b) => compare(a, b, unnoticed).equal === 1;
