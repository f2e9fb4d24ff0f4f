// The browsers that the tests run in. Firefox wants a display, and Chromium none.

import puppeteer from 'puppeteer-core';

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
    },
  },
};

export const browserNames = Object.keys(launches);

export function launch(name, { width = 1000, height = 800 } = {}) {
  return puppeteer.launch({ ...launches[name], defaultViewport: { width, height } });
}
