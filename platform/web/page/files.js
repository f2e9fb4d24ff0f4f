// What the game writes stays in the browser's database: settings, keys, high score, kept games.

const database = 'kov';
const store = 'files';
const folder = '/kov';
const gamesFolder = 'Replays';
const keptFiles = /^(?:game\.conf(?:\.bak)?|bind1\.conf|s\.dat|Replays\/[^/]+\.kovreplay)$/;
const isGame = name => name.startsWith(`${gamesFolder}/`);
const interval = 250; // ms between two looks at what has changed

function open() {
  return new Promise((resolve, reject) => {
    const request = indexedDB.open(database, 1);
    request.onupgradeneeded = () => request.result.createObjectStore(store);
    request.onsuccess = () => resolve(request.result);
    request.onerror = request.onblocked = () => reject(request.error);
  });
}

function done(transaction) {
  return new Promise((resolve, reject) => {
    transaction.oncomplete = resolve;
    transaction.onabort = transaction.onerror = () => reject(transaction.error);
  });
}

async function readAll(db) {
  const files = new Map();
  const transaction = db.transaction(store);
  transaction.objectStore(store).openCursor().onsuccess = event => {
    const cursor = event.target.result;
    if (!cursor) return;
    files.set(cursor.key, cursor.value);
    cursor.continue();
  };
  await done(transaction);
  return files;
}

/** Never fails: without a database nothing is kept, and `isRefused` says so. */
export class Files {
  /**
   * @param hasPlayed whether there is a game that could be kept
   * @param onGames called when the kept games are others
   */
  constructor(onRefusal, hasPlayed, onGames) {
    Object.assign(this, { onRefusal, hasPlayed, onGames });
    this.stored = new Map(); // contents by name
    this.times = new Map(); // of change, by name
  }

  async open() {
    try {
      this.db = await open();
      this.stored = await readAll(this.db);
    } catch (error) {
      this.refuse(error);
    }
  }

  refuse(error) {
    console.warn('KOV: nothing can be kept:', error);
    this.db = null;
    this.onRefusal();
  }

  has(name) {
    return this.stored.has(name);
  }

  /** Names of the kept games. */
  games() {
    return [...this.stored.keys()].filter(isGame).sort();
  }

  remove(name) {
    this.FS.unlink(`${folder}/${name}`);
    return this.save();
  }

  /** Before the game starts. */
  unpack(FS) {
    this.FS = FS;
    FS.mkdirTree(`${folder}/${gamesFolder}`);
    for (const [name, contents] of this.stored) FS.writeFile(`${folder}/${name}`, contents);
    for (const name of this.names()) this.times.set(name, this.timeOf(name));
    setInterval(() => this.save(), interval);
  }

  names() {
    const games = this.FS.readdir(`${folder}/${gamesFolder}`).map(name => `${gamesFolder}/${name}`);
    return [...this.FS.readdir(folder), ...games].filter(name => keptFiles.test(name));
  }

  timeOf(name) {
    return this.FS.stat(`${folder}/${name}`).mtime.getTime();
  }

  /** Whether the file is to be written: it has changed, and as a kept game has a game in it. */
  hasNews(name) {
    return this.times.get(name) !== this.timeOf(name) &&
      (!isGame(name) || this.hasPlayed());
  }

  /** Writes what has changed since the last time, and removes what has gone. */
  async save() {
    if (!this.db || !this.FS) return;
    const names = this.names();
    const changed = names.filter(name => this.hasNews(name));
    const gone = [...this.stored.keys()].filter(name => !names.includes(name));
    if (changed.length + gone.length === 0) return;
    try {
      const transaction = this.db.transaction(store, 'readwrite');
      for (const name of changed) {
        this.times.set(name, this.timeOf(name));
        this.stored.set(name, this.FS.readFile(`${folder}/${name}`));
        transaction.objectStore(store).put(this.stored.get(name), name);
      }
      for (const name of gone) {
        this.stored.delete(name);
        transaction.objectStore(store).delete(name);
      }
      await done(transaction);
    } catch (error) {
      this.refuse(error);
    }
    if ([...changed, ...gone].some(isGame)) this.onGames();
  }
}
