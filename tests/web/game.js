// The page as a player has it: looks at its picture, and presses its keys.

import { existsSync, statSync } from 'node:fs';
import { join } from 'node:path';

import { downloads } from './browsers.js';
import { fromPng } from './images.js';

const patience = 20000; // ms
const view = { width: 48, height: 30 }; // of the game, the picture being 16 by 10

// Colours of the ground, as they come out of the game's own.
const grounds = { menu: [11, 13, 14], play: [27, 27, 27] };

// What Firefox says of a song that ends, or that can't be had, while it is being fetched.
const brokenOff = /^Error: Failed to load ‘/;

// By "Enter" the driver of Firefox means the number pad's.
const returnKey = '\uE006';

export const pause = ms => new Promise(resolve => { setTimeout(resolve, ms); });

export class Game {
  /** @param server of the page */
  constructor(page, server) {
    this.page = page;
    this.server = server;
    this.faults = [];
    this.isFirefox = page.browser().process().spawnfile.includes('firefox');
    page.on('pageerror', error => {
      if (!brokenOff.test(String(error))) this.faults.push(String(error));
    });
    page.on('console', message => {
      if (/Content[ -]Security[ -]Policy/i.test(message.text())) this.faults.push(message.text());
    });
    page.on('request', request => this.faults.push(...(
      /^(?:http:\/\/localhost:|data:|blob:)/.test(request.url()) ? [] : [request.url()])));
  }

  async open() {
    await this.page.goto(this.server.address);
    await this.firstPicture();
  }

  async firstPicture() {
    await this.page.waitForFunction(
      () => performance.getEntriesByName('kov-first-picture').length > 0, { timeout: patience });
  }

  /** What the canvas shows, taken in the task that has drawn it. */
  async picture() {
    const url = await this.page.evaluate(() => new Promise(resolve => {
      requestAnimationFrame(() => resolve(document.getElementById('screen').toDataURL()));
    }));
    return fromPng(url.split(',')[1]);
  }

  /** Red, green and blue at shares of width and height. */
  async colourAt(x, y) {
    const { width, height, data } = await this.picture();
    const i = 4 * (Math.floor(y * height) * width + Math.floor(x * width));
    return [...data.subarray(i, i + 3)];
  }

  /** Whether the ground is that of the menu or of play; that of a pause is the menu's. */
  async shows(ground) {
    const colour = await this.colourAt(0.02, 0.3);
    return colour.every((part, i) => Math.abs(part - grounds[ground][i]) <= 2);
  }

  async until(condition, what, ms = patience) {
    for (const end = Date.now() + ms; Date.now() < end; await pause(100))
      if (await condition()) return;
    throw new Error(`not within ${ms} ms: ${what}`);
  }

  untilShows(ground) {
    return this.until(() => this.shows(ground), `the ground of ${ground}`);
  }

  async press(...keys) {
    for (const name of keys) {
      const key = this.isFirefox && name === 'Enter' ? returnKey : name;
      await this.page.keyboard.press(key, { delay: 50 });
      await pause(50); // more than a tick
    }
  }

  async startLevel() {
    await this.press('Enter');
    await this.untilShows('play');
  }

  /** Where a place of the game's is within the window. */
  inWindow(x, y) {
    return this.page.$eval('#screen', (canvas, u, v) => {
      const { left, top, width, height } = canvas.getBoundingClientRect();
      return [left + width * (0.5 + u), top + height * (0.5 - v)];
    }, x / view.width, y / view.height);
  }

  untilSays(pattern) {
    const text = () => this.page.$eval('#message', each => (each.hidden ? '' : each.innerText));
    return this.until(async () => pattern.test(await text()), `the message ${pattern}`);
  }

  /** What a proof has come to. */
  async verdict() {
    await this.page.waitForFunction(() => /^(?:holds|differs|unusable)$/.test(
      document.getElementById('verdict').className), { timeout: patience });
    return this.page.$eval('#verdict', element => element.textContent);
  }

  /** @returns the file's path */
  async download(link) {
    await link.click();
    const path = join(downloads, await link.evaluate(a => a.download));
    await this.until(() => existsSync(path) && statSync(path).size > 0, path);
    return path;
  }

  /** A kept file's bytes, or null. */
  kept(name) {
    return this.page.evaluate(wanted => new Promise(resolve => {
      const request = indexedDB.open('kov');
      request.onsuccess = () => {
        const get = request.result.transaction('files').objectStore('files').get(wanted);
        get.onsuccess = () => resolve(get.result ? [...get.result] : null);
      };
    }), name);
  }
}
