// A page of best games, which lies one folder above: each can be proved here, by whoever reads it.

import { fetchGame } from './opened.js';
import { prove } from './prove.js';

const rows = [...document.querySelectorAll('article')];

function mark(row, text, kind = '') {
  const place = row.querySelector('.mark');
  place.textContent = text;
  place.className = `mark ${kind}`;
}

/** @returns exit code of `kov-replay verify`, and its first line without the file's name */
async function outcomeOf(name, onProgress) {
  try {
    const game = await fetchGame(name);
    const { code, text } = await prove(name, game.bytes, { onProgress });
    return { code, text: text.split('\n')[0].slice(`${name}: `.length) };
  } catch (error) {
    return { code: 2, text: error.message };
  }
}

/** A file may hold and yet have another score than the page says. */
function judge(row, { code, text }) {
  const scores = [...text.matchAll(/(\d+) points?,/g)].map(([, score]) => score);
  const [shown] = /\d+(?= points)/.exec(row.querySelector('h2').textContent);
  const isRight = code === 0 && scores.includes(shown);
  const reason = code === 0 && !isRight ? 'another score: ' : '';
  mark(row, `${isRight ? '✓' : '✗'} ${reason}${text}`, isRight ? 'holds' : 'differs');
  return isRight;
}

async function proveAll(button, status) {
  button.disabled = true;
  rows.forEach(row => mark(row, 'waits'));
  let proven = 0;
  for (const name of new Set(rows.map(row => row.dataset.file))) {
    const ofFile = rows.filter(row => row.dataset.file === name);
    const tell = percent => ofFile.forEach(row => mark(row, `${percent} %`));
    tell(0);
    const outcome = await outcomeOf(name, tell);
    proven += ofFile.filter(row => judge(row, outcome)).length;
    status.textContent = `${proven} of ${rows.length} proven`;
  }
  button.disabled = false;
}

for (const element of document.querySelectorAll('#check, .check')) element.hidden = false;
const [button, status] = ['button', 'span'].map(name => document.querySelector(`#check ${name}`));
button.addEventListener('click', () => proveAll(button, status));
