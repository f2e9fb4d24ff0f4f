// Shows a proof in place of the picture: how far it is, then what came out.

import { prove } from './prove.js';

const marks = ['holds', 'differs']; // by exit code; else it can't be played at all

export class Proof {
  /**
   * @param root the element that shows it
   * @param onWatch called with the game
   */
  constructor(root, { onOpen, onClose, onWatch }) {
    const part = name => root.querySelector(name);
    Object.assign(this, { root, onOpen, onClose });
    [this.bar, this.verdict] = ['progress', '#verdict'].map(part);
    [this.watch, this.leave] = ['.watch', '.close'].map(part);
    this.leave.addEventListener('click', () => this.close());
    this.watch.addEventListener('click', () => {
      this.hide();
      onWatch(this.game);
    });
  }

  async open(game) {
    this.stop?.abort();
    this.stop = new AbortController();
    this.game = game;
    this.onOpen();
    this.root.hidden = false;
    this.bar.hidden = false;
    this.bar.value = 0;
    this.watch.hidden = true;
    this.verdict.className = '';
    this.verdict.textContent = `${game.name} is being played again, unseen.`;
    this.leave.focus();
    const { code, text } = await prove(game.name, game.bytes, {
      signal: this.stop.signal,
      onProgress: percent => { this.bar.value = percent; },
    });
    this.bar.hidden = true;
    this.watch.hidden = code >= marks.length;
    this.verdict.className = marks[code] ?? 'unusable';
    this.verdict.textContent = text;
  }

  /** Of a game that isn't there. */
  refuse(text) {
    this.onOpen();
    this.root.hidden = false;
    this.bar.hidden = this.watch.hidden = true;
    this.verdict.className = 'unusable';
    this.verdict.textContent = text;
  }

  hide() {
    this.stop?.abort();
    this.root.hidden = true;
  }

  close() {
    this.hide();
    this.onClose();
  }
}
