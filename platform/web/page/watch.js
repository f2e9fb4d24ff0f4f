// Watching a kept game: the program plays it, and a bar below the picture moves it about.

import { Sound } from './sound.js';

const path = '/game.kovreplay';
const space = 32, up = 273, down = 274, right = 275; // SDL's symbols of the keys that do the same

export function timeText(ms) {
  const seconds = Math.floor(ms / 1000);
  return `${Math.floor(seconds / 60)}:${String(seconds % 60).padStart(2, '0')}`;
}

export class Watching {
  /**
   * @param page what the program asks of the page, but for the sound
   * @param createProgram from Emscripten's options
   * @param onRefusal called with what is wrong with the file
   * @param onFault called with an error, and whether the program was there at all
   */
  constructor(game, bar, { page, createProgram, onRefusal, onFault }) {
    Object.assign(this, { game, bar, page, createProgram, onRefusal, onFault });
    this.isHeld = false;
    this.controls = new AbortController();
    this.followControls();
  }

  /** Starts the program, and has it play up to that time (ms), unseen. */
  async begin(from = 0, speed = 1, stands = false) {
    const start = this.stopProgram();
    const lines = [];
    const sound = new Sound({
      isStopped: () => this.isHeld || document.hidden || !this.state || this.state.stands ||
        this.state.seeks,
      afterFirstPicture: action => action(),
      lacks: this.page.lacks,
    }, this.sound?.context);
    let isThere = false;
    try {
      const program = await this.createProgram({
        noInitialRun: true,
        printErr: line => lines.push(line),
        page: { ...this.page, sound, showTime: state => this.show(state) },
      });
      isThere = true;
      if (start !== this.start) return; // another one has begun
      program.FS.writeFile(path, this.game.bytes);
      if (program.callMain(['--watch', path]) !== 0)
        return this.onRefusal(`${this.game.name}: ${lines[0]}`);
      program._kovSeek(from, speed, stands);
      Object.assign(this, { program, sound });
      this.last = performance.now();
      this.turn();
    } catch (error) {
      this.onFault(error, isThere);
    }
  }

  stopProgram() {
    cancelAnimationFrame(this.request);
    this.sound?.end();
    this.program = this.state = null;
    this.start = (this.start ?? 0) + 1;
    return this.start;
  }

  end() {
    this.stopProgram();
    this.controls.abort();
  }

  /** Stands still, whatever the bar says. */
  hold(on) {
    this.isHeld = on;
    this.last = performance.now();
    this.sound?.follow();
  }

  turn() {
    this.request = requestAnimationFrame(() => this.turn());
    const now = performance.now();
    const passed = now - this.last;
    this.last = now;
    if (this.isHeld) return;
    try {
      this.program._kovWatch(passed);
    } catch (error) {
      this.onFault(error, true);
    }
  }

  /** The program says where it is. */
  show(state) {
    const before = this.state;
    this.state = state;
    const isSilent = ({ stands, seeks }) => stands || seeks;
    if (!before || isSilent(before) !== isSilent(state)) this.sound.follow();
    const { toggle, step, speed, time, seek, end } = this.parts;
    const isOver = state.end !== null;
    toggle.textContent = state.stands || isOver ? '▶' : '❚❚';
    step.disabled = !state.stands || isOver;
    speed.textContent = `×${state.speed}`;
    end.textContent = state.seeks ? 'seeking' : isOver ? state.end || 'the end' : '';
    if (this.isDragged) return;
    time.textContent = `${timeText(state.time)} / ${timeText(state.length)}`;
    seek.max = state.length;
    seek.value = this.target ?? state.time;
    if (!state.seeks) this.target = null;
  }

  /** @param symbol of the key that does it */
  press(symbol) {
    if (!this.state) return;
    this.sound.wake();
    if (this.state.end === null) this.program._kovKey(symbol, true);
    else if (symbol === space) this.begin(0, this.state.speed);
  }

  seek(wanted) {
    if (!this.state) return;
    const { time: reached, speed, stands, end } = this.state;
    this.target = wanted;
    this.parts.end.textContent = 'seeking';
    if (wanted < reached || end !== null) this.begin(wanted, speed, stands);
    else this.program._kovSeek(wanted, speed, stands);
  }

  followControls() {
    const part = name => this.bar.querySelector(`[name=${name}]`);
    const names = ['toggle', 'step', 'slower', 'faster', 'speed', 'time', 'seek', 'end'];
    this.parts = Object.fromEntries(names.map(name => [name, part(name)]));
    const { signal } = this.controls;
    for (const [name, symbol] of [['toggle', space], ['step', right], ['slower', down],
                                  ['faster', up]])
      this.parts[name].addEventListener('click', () => {
        this.press(symbol);
        this.page.screen.canvas.focus(); // for keys
      }, { signal });
    const { seek, time } = this.parts;
    seek.addEventListener('input', () => {
      this.isDragged = true;
      time.textContent = `${timeText(seek.value)} / ${timeText(seek.max)}`;
    }, { signal });
    seek.addEventListener('change', () => {
      this.isDragged = false;
      this.seek(Number(seek.value));
    }, { signal });
    this.page.screen.canvas.addEventListener('click', () => this.press(space), { signal });
    document.addEventListener('visibilitychange', () => this.sound?.follow(), { signal });
  }
}
