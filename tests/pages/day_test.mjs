// The page of days, looked at in a browser.
import assert from 'node:assert/strict';
import { spawnSync } from 'node:child_process';
import { mkdtempSync, readFileSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import path from 'node:path';
import { after, before, test } from 'node:test';

import { startBrowser, withPage } from './browser.mjs';
import { checkPage } from './rules.mjs';

const date = '2027-01-15';

let browser;
let folder;

before(async () => {
  folder = mkdtempSync(path.join(tmpdir(), 'logchecker-day-'));
  browser = await startBrowser();
});

after(async () => {
  await browser?.close();
  rmSync(folder, { recursive: true });
});

function logcheck(codes, ...args) {
  const run = spawnSync(process.env.LOGCHECK, args, { encoding: 'utf8' });
  assert.ok(codes.includes(run.status), `${args.join(' ')}: ${run.status} ${run.stderr}`);
}

// Makes a station, checks it, and gives the page's path and the report's content.
function check(name, sample, days) {
  const station = path.join(folder, name);
  logcheck([0], 'sample', station, '--date', date, ...sample);
  const asked = ['check', '--settings', station, '--date', date, '--days', String(days)];
  const [page, json] = [`${station}.html`, `${station}.json`];
  logcheck([0, 1, 2], ...asked, '--format', 'html', '--output', page);
  logcheck([0, 1, 2], ...asked, '--format', 'json', '--output', json);
  return { page, report: JSON.parse(readFileSync(json, 'utf8')) };
}

// What the page says of a day, by its places.
function readDay(id) {
  const textOf = (element) => element.textContent.trim().replace(/\s+/g, ' ');
  const day = document.getElementById(id);
  const rows = [...day.querySelectorAll(`tr[id^="${id}-m"]`)];
  const tableOf = (heading) => [...day.querySelectorAll('table')].find((table) =>
    textOf(table.caption).startsWith(heading));
  const splits = tableOf('The splits');
  const headings = splits ? [...splits.tHead.rows[0].cells].map(textOf) : [];
  const columns = ['Breaks', 'Adverts'].map((name) => headings.indexOf(name));
  return {
    text: textOf(day),
    mismatches: rows.map((row) => [...row.cells].map(textOf)),
    splits: splits && [...splits.tBodies[0].rows].map((row) =>
      columns.map((column) => Number(textOf(row.cells[column]).replace(/,/g, '')))),
    silent: day.querySelectorAll(`tr[id^="${id}-q"]`).length,
    // Each mark of the picture names the times of the rows that it stands for; it leads to the first.
    marks: [...day.querySelectorAll('svg a.mark')].map((mark) => {
      const target = document.getElementById(mark.getAttribute('href').slice(1));
      return { name: mark.getAttribute('aria-label'), time: target && textOf(target.cells[0]) };
    }),
    // Carts of each break side by side, split by split, by the row that leads there.
    carts: rows.map((row) => {
      const link = row.querySelector('a');
      const table = link && document.getElementById(link.getAttribute('href').slice(1))
        .querySelector('table.adverts');
      return table && [...table.querySelectorAll('small')].map((small) =>
        parseInt(textOf(small), 10)).sort((a, b) => a - b);
    }),
  };
}

async function checkNumbers({ page: file, report }) {
  for (const day of report.days) {
    const shown = await withPage(browser, file, {}, (page) =>
      page.evaluate(readDay, `d${day.date}`));
    if (day.trouble) {
      assert.ok(shown.text.includes(day.trouble.slice(0, 60)), shown.text.slice(0, 300));
      continue;
    }
    assert.deepEqual(shown.mismatches, day.mismatches.map((mismatch) => [
      mismatch.time ?? '--:--',
      ...mismatch.lengths.map((length) => (length === null ? 'Not Found' : length.text)),
    ]));
    assert.deepEqual(shown.splits, day.splits.map((split) => [split.breaks, split.adverts]));
    assert.equal(shown.silent, day.counts.withoutAudio);
    assert.ok(shown.marks.length > 0 || day.mismatches.length === 0, 'mismatches are marked');
    for (const mark of shown.marks) assert.ok(mark.name.includes(mark.time), mark.name);
    const marked = new Set(shown.marks.map((mark) => mark.time));
    assert.ok(marked.size === shown.marks.length, 'no two marks lead to one row');
    shown.carts.forEach((carts, i) => {
      if (carts === null) return;
      const expected = day.mismatches[i].adverts.flatMap((adverts) =>
        (adverts ?? []).map((advert) => advert.cart));
      assert.deepEqual(carts, expected.sort((a, b) => a - b));
    });
  }
}

const stations = [
  ['a day that matches', ['--breaks', '60', '--mistakes', '0'], 1],
  ['five mistakes, and days without a log', ['--days', '3', '--missing-days', '1'], 4],
  ['one split', ['--splits', '1', '--breaks', '20'], 1],
  ['four hundred mistakes in ten splits',
    ['--splits', '10', '--breaks', '450', '--adverts', '2', '--mistakes', '400'], 1],
];

for (const [name, sample, days] of stations) {
  test(name, async (t) => {
    const made = check(name, sample, days);
    await t.test('says what the JSON says', () => checkNumbers(made));
    await checkPage(t, browser, made.page);
  });
}
