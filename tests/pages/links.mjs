// Links, followed as a person follows them.
import assert from 'node:assert/strict';

import { withPage } from './browser.mjs';

// Every link leads to a place in the page that is there once.
export async function checkTargets(browser, file) {
  await withPage(browser, file, {}, async (page) => {
    const wrong = await page.evaluate(() => {
      const ids = new Map();
      for (const { id } of document.querySelectorAll('[id]')) ids.set(id, (ids.get(id) ?? 0) + 1);
      return [...document.querySelectorAll('a')]
        .map((link) => link.getAttribute('href') ?? 'no href')
        .filter((href) => !href.startsWith('#') || ids.get(decodeURIComponent(href.slice(1))) !== 1);
    });
    assert.deepEqual(wrong, []);
  });
}

function evenly(count, most) {
  if (count <= most) return [...Array(count).keys()];
  return Array.from({ length: most }, (_, i) => Math.round((i * (count - 1)) / (most - 1)));
}

// Return on a link brings its target into view. Of so many links, evenly chosen, the first and the last
// among them.
export async function checkFollowedLinks(browser, file, mostFollowed) {
  await withPage(browser, file, {}, async (page) => {
    const count = await page.evaluate(() => {
      globalThis.links = [...document.querySelectorAll('a[href]')];
      return globalThis.links.length;
    });
    for (const i of evenly(count, mostFollowed)) {
      const href = await page.evaluate((index) => {
        history.replaceState(null, '', location.pathname);
        globalThis.links[index].focus();
        return globalThis.links[index].getAttribute('href');
      }, i);
      await page.keyboard.press('Enter');
      const place = await page.evaluate((target) => {
        const box = document.getElementById(decodeURIComponent(target.slice(1)));
        const { top, bottom, width } = box.getBoundingClientRect();
        return {
          hash: location.hash,
          seen: width > 0 && bottom > 0 && top < innerHeight,
          left: box.getBoundingClientRect().left >= 0,
        };
      }, href);
      assert.deepEqual(place, { hash: href, seen: true, left: true }, `the link to ${href}`);
    }
  });
}

// The tabulator goes through links, regions that scroll and summaries in the order of the page, and
// shows where it is: the first so many of them.
export async function checkKeys(browser, file, mostReached) {
  await withPage(browser, file, {}, async (page) => {
    const expected = await page.evaluate((most) => {
      const stops = 'a[href], summary, [tabindex="0"]';
      globalThis.stops = [...document.querySelectorAll(stops)].filter((stop) =>
        stop.checkVisibility());
      return Math.min(globalThis.stops.length, most);
    }, mostReached);
    for (let i = 0; i < expected; ++i) {
      await page.keyboard.press('Tab');
      const reached = await page.evaluate((index) => {
        const style = getComputedStyle(document.activeElement);
        return {
          place: globalThis.stops.indexOf(document.activeElement),
          shown: document.activeElement.matches(':focus-visible') && style.outlineStyle !== 'none',
          stop: globalThis.stops[index].outerHTML.slice(0, 120),
        };
      }, i);
      assert.equal(reached.place, i, `${reached.stop} is the next stop of the tabulator`);
      assert.ok(reached.shown, `the focus shows on ${reached.stop}`);
    }
  });
}
