// What the game writes stays in the browser's database: settings, keys, high score, kept games.

const database = 'kov';
const store = 'files';
const folder = '/kov';
const keptFiles = /^(?:game\.conf(?:\.bak)?|bind1\.conf|s\.dat|Replays\/[^/]+)$/;
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
  constructor(onRefusal) {
    this.onRefusal = onRefusal;
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

  /** Before the game starts. */
  unpack(FS) {
    this.FS = FS;
    FS.mkdirTree(`${folder}/Replays`);
    for (const [name, contents] of this.stored) FS.writeFile(`${folder}/${name}`, contents);
    for (const name of this.names()) this.times.set(name, this.timeOf(name));
    setInterval(() => this.save(), interval);
  }

  names() {
    const inside = this.FS.readdir(`${folder}/Replays`).map(name => `Replays/${name}`);
    return [...this.FS.readdir(folder), ...inside].filter(name => keptFiles.test(name));
  }

  timeOf(name) {
    return this.FS.stat(`${folder}/${name}`).mtime.getTime();
  }

  /** Writes what has changed since the last time. */
  async save() {
    if (!this.db || !this.FS) return;
    const changed = this.names().filter(name => this.times.get(name) !== this.timeOf(name));
    if (changed.length === 0) return;
    try {
      const transaction = this.db.transaction(store, 'readwrite');
      for (const name of changed) {
        this.times.set(name, this.timeOf(name));
        transaction.objectStore(store).put(this.FS.readFile(`${folder}/${name}`), name);
      }
      await done(transaction);
    } catch (error) {
      this.refuse(error);
    }
  }
}
