// The list of kept games, and whether there are to be more.

const key = 'kov-keeps-games';
// A day, a time, a score once there is one.
const pattern = /^(\d{4}-\d\d-\d\d) (\d\d)\.(\d\d)\.\d\d(?: (\d+))?(?: auto)?\.kovreplay$/;
const rest = 50; // ms between two files that are looked into

/** What the player has chosen: yes, as long as nothing is. */
export function keepsGames() {
  try {
    return localStorage.getItem(key) !== 'no';
  } catch {
    return true;
  }
}

function choose(keeps) {
  try {
    localStorage.setItem(key, keeps ? 'yes' : 'no');
  } catch {
    return;
  }
  location.reload(); // a game is kept from the program's start
}

function buttonOf(text, action) {
  const button = document.createElement('button');
  button.type = 'button';
  button.textContent = text;
  button.addEventListener('click', action);
  return button;
}

function linkTo(bytes, name) {
  const link = document.createElement('a');
  link.textContent = 'Download';
  link.download = name;
  link.href = URL.createObjectURL(new Blob([bytes]));
  return link;
}

export class Games {
  /**
   * @param list the table's body
   * @param lengthOf ms of play, by the file's name
   */
  constructor(files, list, { lengthOf, onWatch, onProve }) {
    Object.assign(this, { files, list, lengthOf, onWatch, onProve });
    this.lengths = new Map();
  }

  /** The latest first. */
  show() {
    for (const link of this.list.querySelectorAll('a')) URL.revokeObjectURL(link.href);
    const names = this.files.games().reverse();
    this.list.replaceChildren(...names.map(name => this.rowOf(name)));
    this.list.parentElement.hidden = names.length === 0;
    this.measure();
  }

  rowOf(name) {
    const fileName = name.split('/').pop();
    const [, day, hours, minutes, score] = pattern.exec(fileName) ?? [null, fileName];
    const bytes = this.files.stored.get(name);
    const game = { name: fileName, bytes };
    const row = document.createElement('tr');
    row.dataset.name = name;
    for (const text of [hours ? `${day} ${hours}:${minutes}` : day, score ?? '–', '…'])
      row.insertCell().textContent = text;
    const actions = row.insertCell().appendChild(document.createElement('div'));
    actions.append(
      buttonOf('Watch', () => this.onWatch(game)), buttonOf('Prove', () => this.onProve(game)),
      linkTo(bytes, fileName), buttonOf('Delete', () => this.files.remove(name)));
    return row;
  }

  /** Fills the lengths in, one by one, as each means to read a whole file. */
  async measure() {
    const rows = [...this.list.rows];
    for (const row of rows) {
      const { name } = row.dataset;
      const known = `${name} ${this.files.stored.get(name)?.length}`;
      if (!this.lengths.has(known)) {
        await new Promise(resolve => { setTimeout(resolve, rest); });
        if (!row.isConnected) return; // there is a newer list
        this.lengths.set(known, this.lengthOf(name));
      }
      row.cells[2].textContent = this.lengths.get(known);
    }
  }
}

/** The button that has games kept, or not. */
export function offerKeeping(button, canKeep) {
  button.hidden = !canKeep;
  button.textContent = keepsGames() ? "Don't keep my games" : 'Keep my games';
  button.addEventListener('click', () => choose(!keepsGames()));
}
