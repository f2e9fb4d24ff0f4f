// Serves the page, and what the tests add to it, on a port of its own.

import { createServer } from 'node:http';
import { readFile } from 'node:fs/promises';
import { extname, join } from 'node:path';
import { fileURLToPath } from 'node:url';

export const root = fileURLToPath(new URL('../..', import.meta.url));
export const site = join(root, 'build/web');

// Where a path is looked for, the first that has it counting.
const folders = [site, ...['tests/recordings', 'build/wasm/tests/web', 'tests/web', 'bench/web',
                           '.'].map(name => join(root, name))];

const kinds = {
  '.html': 'text/html', '.js': 'text/javascript', '.css': 'text/css', '.wasm': 'application/wasm',
  '.png': 'image/png', '.svg': 'image/svg+xml', '.flac': 'audio/flac', '.ogg': 'audio/ogg',
  '.mp3': 'audio/mpeg', '.webmanifest': 'application/manifest+json',
};

/** The contents, or null. */
export async function fileOf(name, places = folders) {
  for (const folder of places) {
    try {
      return await readFile(join(folder, name));
    } catch {
      // The next one may have it.
    }
  }
  return null;
}

export const isMissing = () => null;

export class Server {
  asked = []; // paths, as they came
  changes = new Map(); // by path: a function that makes other contents, or null for none

  /** @param folder where paths are looked for first */
  constructor(folder = site) {
    this.folder = folder;
  }

  async start() {
    this.http = createServer(async (request, answer) => {
      const asked = decodeURIComponent(new URL(request.url, this.address).pathname.slice(1));
      const path = asked === '' || asked.endsWith('/') ? `${asked}index.html` : asked;
      this.asked.push(path);
      const contents = await fileOf(path, [this.folder, ...folders]);
      const sent = this.changes.has(path) ? await this.changes.get(path)(contents) : contents;
      if (sent === null) return answer.writeHead(404).end();
      answer.writeHead(200, { 'Content-Type': kinds[extname(path)] ?? 'application/octet-stream' });
      answer.end(sent);
    });
    await new Promise(resolve => this.http.listen(0, '127.0.0.1', resolve));
    return this;
  }

  get address() {
    return `http://localhost:${this.http.address()?.port ?? 0}/`;
  }

  stop() {
    this.http.closeAllConnections();
    return new Promise(resolve => this.http.close(resolve));
  }
}
