// Pictures as { width, height, data }, data being RGBA from the top.

import { PNG } from 'pngjs';

const unnoticed = 24; // of 255

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

/** To the eye, by the part that differs most: red, green or blue. */
function areLike(a, i, b, k) {
  return [0, 1, 2].every(part => Math.abs(a.data[i + part] - b.data[k + part]) <= unnoticed);
}

/** The share of the pixels of `a` that `b` has one like, at most `near` pixels away. */
export function shareOf(a, b, near = 0) {
  const isThere = (x, y) => {
    for (let v = Math.max(0, y - near); v <= Math.min(b.height - 1, y + near); ++v)
      for (let u = Math.max(0, x - near); u <= Math.min(b.width - 1, x + near); ++u)
        if (areLike(a, 4 * (y * a.width + x), b, 4 * (v * b.width + u))) return true;
    return false;
  };
  let count = 0;
  for (let y = 0; y < a.height; ++y)
    for (let x = 0; x < a.width; ++x) if (isThere(x, y)) ++count;
  return count / (a.width * a.height);
}

export const areEqual = (a, b) => shareOf(a, b) === 1;
