// What holds for every page that logcheck writes.
import assert from 'node:assert/strict';
import { statSync } from 'node:fs';

import { checkPaper } from './paper.mjs';
import { checkFollowedLinks, checkKeys, checkTargets } from './links.mjs';
import { tools, withPage } from './browser.mjs';

const axeSource = tools('axe-core').source;
const { HtmlValidate } = tools('html-validate');

// The widths that a page is looked at: a desk, a tablet, a phone. In CSS pixels.
export const widths = [1280, 800, 375];

// Beyond this many elements a page is looked at in fewer ways, since some take minutes then: what is
// true of each of its parts is seen on smaller pages.
const mostElements = 20_000;

// A page may style itself and nothing else: each part of the policy that is not here, or reads
// otherwise, is a fault.
const policy = {
  'default-src': /^'none'$/,
  'style-src': /^('unsafe-inline'|'sha256-[A-Za-z0-9+/=]+')$/,
  'base-uri': /^'none'$/,
  'form-action': /^'none'$/,
};

async function checkAlone(browser, file) {
  await withPage(browser, file, {}, async (page, doings, address) => {
    assert.deepEqual(doings.requests, [address], 'nothing but the file is fetched');
    assert.deepEqual(doings.scripts, [], 'no script runs');
    assert.deepEqual(doings.messages, [], 'the browser has nothing to say');
    const found = await page.evaluate(() => ({
      scripts: document.scripts.length,
      handlers: [...document.querySelectorAll('*')].flatMap((element) =>
        element.getAttributeNames().filter((name) => name.startsWith('on'))),
      policies: [...document.querySelectorAll('meta[http-equiv="Content-Security-Policy" i]')].map(
        (meta) => meta.content),
      policyIsFirst: document.querySelector('style, link, img, svg')?.compareDocumentPosition(
        document.querySelector('meta[http-equiv]')) === Node.DOCUMENT_POSITION_PRECEDING,
    }));
    assert.equal(found.scripts, 0);
    assert.deepEqual(found.handlers, []);
    assert.equal(found.policies.length, 1, 'one policy');
    assert.ok(found.policyIsFirst, 'the policy stands before all that it is to hold');
    const parts = found.policies[0].split(';').map((part) => part.trim()).filter(Boolean);
    for (const part of parts) {
      const [name, ...values] = part.split(/\s+/);
      assert.match(values.join(' '), policy[name] ?? /^(?!)/, `the policy says: ${part}`);
    }
    for (const name of ['default-src', 'base-uri', 'form-action']) {
      assert.ok(parts.some((part) => part.startsWith(`${name} `)), `the policy lacks ${name}`);
    }
  });
}

async function checkAccess(browser, file, dark) {
  await withPage(browser, file, { dark, bypass: true }, async (page) => {
    await page.evaluate(axeSource);
    const violations = await page.evaluate(async () => {
      const found = await globalThis.axe.run(document, {
        runOnly: ['wcag2a', 'wcag2aa', 'wcag21a', 'wcag21aa'],
        resultTypes: ['violations'],
      });
      return found.violations.map((violation) => {
        const places = violation.nodes.slice(0, 3).map((node) => node.html.slice(0, 200));
        return `${violation.id}: ${violation.help}: ${places.join(' | ')}`;
      });
    });
    assert.deepEqual(violations, []);
  });
}

async function checkMarkup(file) {
  const validator = new HtmlValidate({ root: true, extends: ['html-validate:recommended'] });
  const report = await validator.validateFile(file);
  const messages = report.results.flatMap((result) =>
    result.messages.map((message) => `${message.line}:${message.column} ${message.message}`));
  assert.deepEqual(messages.slice(0, 10), []);
  assert.ok(report.valid);
}

async function checkWidth(browser, file, width) {
  await withPage(browser, file, { width }, async (page) => {
    const size = await page.evaluate(() => ({
      needed: document.documentElement.scrollWidth,
      given: document.documentElement.clientWidth,
    }));
    assert.ok(size.needed <= size.given, `${size.needed} wide in ${size.given}`);
  });
}

// Adds the tests of one page to the test `t`.
export async function checkPage(t, browser, file) {
  assert.ok(statSync(file).size > 0, `${file} is there`);
  const elements = await withPage(browser, file, {}, (page) =>
    page.evaluate(() => document.querySelectorAll('*').length));
  await t.test('stands alone', () => checkAlone(browser, file));
  const isLarge = elements > mostElements;
  if (!isLarge) {
    await t.test('is good HTML', () => checkMarkup(file));
    await t.test('can be used by all, light', () => checkAccess(browser, file, false));
    await t.test('can be used by all, dark', () => checkAccess(browser, file, true));
  }
  await t.test('each link has one target', () => checkTargets(browser, file));
  await t.test('links lead to their place', () => checkFollowedLinks(browser, file, isLarge ? 6 : 60));
  await t.test('keys reach every link in order', () => checkKeys(browser, file, isLarge ? 30 : 500));
  for (const width of widths) {
    await t.test(`fits ${width} pixels`, () => checkWidth(browser, file, width));
  }
  await t.test('fits paper', () => checkPaper(browser, file));
}
