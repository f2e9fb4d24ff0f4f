// Tests that are run in each browser, each with a server, a page and storage of its own.

import assert from 'node:assert/strict';
import { mkdirSync } from 'node:fs';
import { join } from 'node:path';
import { after, before, describe, it } from 'node:test';

import { browserNames, createContext, launch } from './browsers.js';
import { Game } from './game.js';
import { root, Server } from './server.js';

export const results = join(root, 'build/web-tests'); // for people to look at

/** @param define called for each browser: its name, what adds a test, what takes a picture */
export function suite(what, define) {
  for (const name of browserNames)
    describe(`${what} in ${name}`, { timeout: 900000 }, () => {
      let browser;

      before(async () => {
        mkdirSync(results, { recursive: true });
        browser = await launch(name);
      });
      after(() => browser?.close());

      const test = (title, run, { prelude = '', missing = [], worker = true } = {}) =>
        it(title, async () => {
          const server = await new Server().start();
          server.preludes.set('page.js', prelude);
          for (const path of worker ? missing : [...missing, 'worker.js']) server.missing.add(path);
          const context = await createContext(browser);
          const page = await context.newPage();
          const game = new Game(page, server);
          try {
            await run(game, page);
            assert.deepEqual(game.faults, []);
          } catch (error) {
            await page.screenshot({ path: join(results, `${name}-failure.png`) }).catch(() => {});
            throw error;
          } finally {
            await context.close();
            await server.stop();
          }
        });
      const shot = (page, title) =>
        page.screenshot({ path: join(results, `${name}-${title}.png`) });

      define({ name, test, shot });
    });
}
