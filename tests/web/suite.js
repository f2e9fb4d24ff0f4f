// Tests that are run in each browser, each with a server, a page and storage of its own.

import assert from 'node:assert/strict';
import { mkdirSync } from 'node:fs';
import { join } from 'node:path';
import { after, before, describe, it } from 'node:test';

import { browserNames, createContext, launch } from './browsers.js';
import { Game } from './game.js';
import { root, Server } from './server.js';

export const results = join(root, 'build/web-tests'); // for people to look at

/** @param define called for each browser, with what adds a test and its name */
export function suite(what, define, names = browserNames) {
  for (const name of names)
    describe(`${what} in ${name}`, { timeout: 900000 }, () => {
      let browser;

      before(async () => {
        mkdirSync(results, { recursive: true });
        browser = await launch(name);
      });
      after(() => browser?.close());

      /** @param changes of what the server has, by path */
      const test = (title, run, changes = {}) =>
        it(title, async () => {
          const server = await new Server().start();
          server.changes = new Map(Object.entries(changes));
          const context = await createContext(browser);
          const page = await context.newPage();
          const game = new Game(page, server);
          try {
            await run(game, page);
            assert.deepEqual(game.faults, []);
          } finally {
            const path = join(results, `${name}, ${title}.png`); // its end, good or bad
            await page.screenshot({ path }).catch(() => {});
            await context.close();
            await server.stop();
          }
        });

      define(test, name);
    });
}
