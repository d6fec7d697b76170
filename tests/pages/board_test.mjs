// The board, looked at in a browser.
import assert from 'node:assert/strict';
import { spawnSync } from 'node:child_process';
import { mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import path from 'node:path';
import { after, before, test } from 'node:test';

import { startBrowser, withPage } from './browser.mjs';
import { dayOf, network, reportOf, writeReports } from './reports.mjs';
import { checkPage } from './rules.mjs';

const staleHours = 48;
const rightToLeft = '\u202eright to left\u202c \u05d0\u05d1\u05d2';

let browser;
let folder;

before(async () => {
  folder = mkdtempSync(path.join(tmpdir(), 'logchecker-board-'));
  browser = await startBrowser();
});

after(async () => {
  await browser?.close();
  rmSync(folder, { recursive: true });
});

// Writes the page of the reports and gives its path. `more` are further files.
function board(name, reports, code, more = []) {
  const file = path.join(folder, `${name}.html`);
  const place = mkdtempSync(path.join(folder, name));
  const files = [...writeReports(place, reports), ...more];
  const run = spawnSync(process.env.LOGCHECK,
    ['board', '--stale', String(staleHours), '--output', file, ...files], { encoding: 'utf8' });
  assert.equal(run.status, code, run.stderr);
  return file;
}

function wordsOf(day, report) {
  const hours = (Date.now() - Date.parse(report.checkedAt)) / 3_600_000;
  if (hours > staleHours) return 'too old';
  if (day.trouble) return day.noLogYet ? 'no log yet' : 'not checked';
  if (day.code === 0) return 'match';
  const { mismatches, warnings } = day.counts;
  if (mismatches === 0) return `${warnings} to mend`;
  return mismatches === 1 ? '1 differs' : `${mismatches} differ`;
}

// Holds every cell, the row that it leads to and the summary against the reports.
async function checkNumbers(file, reports) {
  const shown = await withPage(browser, file, {}, (page) => page.evaluate(() => {
    const textOf = (element) => {
      const copy = element.cloneNode(true);
      for (const sign of copy.querySelectorAll('[aria-hidden="true"]')) sign.remove();
      return copy.textContent.trim();
    };
    const cells = {};
    for (const table of document.querySelectorAll('.board table')) {
      const days = [...table.querySelectorAll('thead time')].map((time) => time.dateTime);
      for (const row of table.querySelectorAll('tbody tr')) {
        const station = textOf(row.querySelector('th'));
        [...row.querySelectorAll('td')].forEach((cell, i) => {
          const link = cell.querySelector('a');
          const target = link && document.getElementById(link.getAttribute('href').slice(1));
          cells[`${station} ${days[i]}`] = [
            textOf(cell),
            target && textOf(target.querySelector('.badge')),
            target && textOf(target.closest('section').querySelector('h3')),
            target && target.id.endsWith(days[i]),
          ];
        });
      }
    }
    const counts = [...document.querySelectorAll('.counts li')].map((item) => textOf(item));
    return { cells, counts };
  }));
  const expected = {};
  const totals = {};
  const known = (words) => words.replace(/^\d+ /, '').replace('differs', 'differ');
  for (const report of reports) {
    for (const day of report.days) {
      const words = wordsOf(day, report);
      expected[`${report.station} ${day.date}`] = [words, words, report.station, true];
      totals[known(words)] = (totals[known(words)] ?? 0) + 1;
    }
  }
  assert.deepEqual(shown.cells, expected);
  const order = ['not checked', 'too old', 'differ', 'to mend', 'no log yet', 'match'];
  const names = { 'no log yet': 'without a log yet' };
  assert.deepEqual(
    shown.counts.map((count) => count.replace('1 day differs', '1 day differ')
      .replace('1 day matches', '1 day match')),
    order.filter((words) => totals[words]).map((words) => {
      const noun = totals[words] === 1 ? 'day' : 'days';
      return `${totals[words].toLocaleString('en-US')} ${noun} ${names[words] ?? words}`;
    }));
}

test('one station, one day', async (t) => {
  const reports = network(1, 1);
  const file = board('one', reports, 0);
  await t.test('says what the report says', () => checkNumbers(file, reports));
  await checkPage(t, browser, file);
});

test('twelve stations, fourteen days', async (t) => {
  const reports = network(12, 14);
  const file = board('twelve', reports, 2);
  await t.test('says what the reports say', () => checkNumbers(file, reports));
  await checkPage(t, browser, file);
});

test('a month of days', async (t) => {
  const reports = network(3, 31);
  const file = board('month', reports, 2);
  await t.test('says what the reports say', () => checkNumbers(file, reports));
  await checkPage(t, browser, file);
});

test('names that are more than names, and reports that are none', async (t) => {
  const days = (state, count, text) => [dayOf(0, state, count, text), dayOf(1, 'match')];
  const reports = [
    reportOf('<script>alert(1)</script> & "two" \'one\'', days('differs', 400)),
    reportOf(rightToLeft, days('trouble', 1, '<img src="https://example.invalid/x">'.repeat(100))),
    reportOf('L'.repeat(5000), days('see', 60)),
    reportOf('Easton\r\nRadio\t\u001b[31m', days('no-log')),
  ];
  const broken = path.join(folder, 'bro<b>ken.json');
  writeFileSync(broken, JSON.stringify(reports[0]).slice(0, 500));
  const older = path.join(folder, 'older.json');
  writeFileSync(older, JSON.stringify({ ...reports[0], checkedAt: '2026-01-01T00:00:00Z' }));
  const file = board('odd', reports, 2, [broken, older]);
  await t.test('are text', async () => {
    await withPage(browser, file, {}, async (page) => {
      const found = await page.evaluate(() => ({
        text: document.body.innerText,
        elements: [...new Set([...document.body.querySelectorAll('*')].map((element) =>
          element.localName))].sort(),
      }));
      assert.ok(found.text.includes('<script>alert(1)</script> & "two" \'one\''));
      assert.ok(found.text.includes('\\u202eright to left\\u202c \u05d0\u05d1\u05d2'));
      assert.ok(found.text.includes('Easton Radio \\u001b[31m'));
      assert.ok(found.text.includes('bro<b>ken.json'));
      assert.ok(found.text.includes('older.json'));
      assert.deepEqual(found.elements, [
        'a', 'bdi', 'caption', 'details', 'div', 'h1', 'h2', 'h3', 'header', 'li', 'main', 'ol', 'p',
        'section', 'span', 'summary', 'table', 'tbody', 'td', 'th', 'thead', 'time', 'tr', 'ul',
      ]);
    });
  });
  await checkPage(t, browser, file);
});

test('a thousand stations, fourteen days', async (t) => {
  const reports = network(1000, 14);
  const file = board('thousand', reports, 2);
  await t.test('is no more than 20 MiB', () => {
    assert.ok(readFileSync(file).length < 20 * 1024 * 1024);
  });
  await t.test('says what the reports say', () => checkNumbers(file, reports));
  await checkPage(t, browser, file);
});

test('no report at all', async (t) => {
  const file = board('none', [], 2, [path.join(folder, 'missing.json')]);
  await checkPage(t, browser, file);
});

