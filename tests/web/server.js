// Serves the page, and what the tests add to it, on a port of its own.

import { createServer } from 'node:http';
import { readFile } from 'node:fs/promises';
import { extname, join } from 'node:path';
import { fileURLToPath } from 'node:url';

export const root = fileURLToPath(new URL('../..', import.meta.url));
export const site = join(root, 'build/web');

// Where a path is looked for, the first that has it counting.
const folders = [site, join(root, 'tests/recordings'), join(root, 'build/wasm/tests/web'), join(root, 'tests/web'),
                 join(root, 'bench/web'), root];

const kinds = {
  '.html': 'text/html', '.js': 'text/javascript', '.css': 'text/css', '.wasm': 'application/wasm',
  '.png': 'image/png', '.svg': 'image/svg+xml', '.flac': 'audio/flac', '.ogg': 'audio/ogg',
  '.mp3': 'audio/mpeg', '.webmanifest': 'application/manifest+json',
};

/** The contents, or null. */
export async function fileOf(name) {
  for (const folder of folders) {
    try {
      return await readFile(join(folder, name));
    } catch {
      // The next one may have it.
    }
  }
  return null;
}

export class Server {
  asked = []; // paths, as they came
  missing = new Set(); // paths that are answered as if they weren't there
  preludes = new Map(); // by path: a text in front of the file's
  others = new Map(); // by path: the path that takes its place

  async start() {
    this.http = createServer(async (request, answer) => {
      const path = new URL(request.url, this.address).pathname.slice(1) || 'index.html';
      this.asked.push(path);
      const contents = this.missing.has(path) ? null : await fileOf(this.others.get(path) ?? path);
      if (contents === null) return answer.writeHead(404).end();
      answer.writeHead(200, { 'Content-Type': kinds[extname(path)] ?? 'application/octet-stream' });
      answer.end(Buffer.concat([Buffer.from(this.preludes.get(path) ?? ''), contents]));
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
