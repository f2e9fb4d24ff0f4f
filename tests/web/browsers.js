// The browsers that the tests run in. Firefox wants a display, and Chromium none.

import { mkdirSync } from 'node:fs';
import { join } from 'node:path';
import puppeteer from 'puppeteer-core';

import { root } from './server.js';

export const downloads = join(root, 'build/web-tests/downloads');

const launches = {
  chromium: {
    browser: 'chrome',
    executablePath: '/usr/bin/chromium',
    headless: true,
    args: ['--no-sandbox', '--use-angle=swiftshader', '--enable-unsafe-swiftshader',
           '--hide-scrollbars'],
  },
  firefox: {
    browser: 'firefox',
    executablePath: '/usr/bin/firefox-esr',
    headless: false,
    extraPrefsFirefox: {
      'webgl.force-enabled': true,
      'dom.serviceWorkers.testing.enabled': true,
      'media.autoplay.blocking_policy': 0,
      'browser.download.folderList': 2,
      'browser.download.dir': downloads,
    },
  },
};

export const browserNames = Object.keys(launches);

export function launch(name, { width = 1000, height = 800 } = {}) {
  return puppeteer.launch({ ...launches[name], defaultViewport: { width, height } });
}

/** Storage of its own; what is downloaded goes where it is looked for. */
export function createContext(browser) {
  mkdirSync(downloads, { recursive: true });
  const downloadBehavior = { policy: 'allow', downloadPath: downloads };
  return browser.createBrowserContext({ downloadBehavior });
}
