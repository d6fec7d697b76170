// Draws the pages that logcheck writes: node pictures.mjs FOLDER. A day with its mistakes and a board of
// twelve stations, on a desk's screen and, the dark ones, on a phone's, and what both are on paper.
import { execFileSync, spawnSync } from 'node:child_process';
import { mkdirSync, mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import path from 'node:path';

import { startBrowser, withPage } from './browser.mjs';
import { network, writeReports } from './reports.mjs';

const folder = path.resolve(process.argv[2]);
const logcheck = process.env.LOGCHECK;
const highest = 1400; // of a picture, in pixels

const scratch = mkdtempSync(path.join(tmpdir(), 'logchecker-pictures-'));

function run(codes, ...args) {
  const { status, stderr } = spawnSync(logcheck, args, { cwd: scratch, encoding: 'utf8' });
  if (!codes.includes(status)) throw new Error(`${args.join(' ')}: ${stderr}`);
}

async function draw(browser, page, name, options) {
  await withPage(browser, page, options, async (tab) => {
    const full = await tab.evaluate(() => document.documentElement.scrollHeight);
    await tab.screenshot({
      path: path.join(folder, `${name}.png`),
      clip: { x: 0, y: 0, width: options.width, height: Math.min(full, highest) },
      captureBeyondViewport: true,
    });
  });
}

async function drawPaper(browser, page, name) {
  const pdf = path.join(folder, `${name}.pdf`);
  await withPage(browser, page, { paper: true }, (tab) =>
    tab.pdf({ path: pdf, preferCSSPageSize: true, printBackground: true }));
  execFileSync('pdftoppm', ['-r', '80', '-png', '-singlefile', pdf, pdf.replace(/\.pdf$/, '')]);
  rmSync(pdf);
}

const browser = await startBrowser();
try {
  mkdirSync(folder, { recursive: true });
  const station = 'Larkfield Radio';
  run([0], 'sample', station, '--date', '2027-01-15');
  const pages = { 'day-page': path.join(scratch, 'day.html'), board: path.join(scratch, 'board.html') };
  run([1], 'check', '--settings', station, '--date', '2027-01-15', '--format', 'html',
    '--output', pages['day-page']);
  run([2], 'board', '--title', 'Tomorrow and the days after', '--stale', '48', '--output', pages.board,
    ...writeReports(scratch, network(12, 14)).map((file) => path.basename(file)));
  for (const [name, page] of Object.entries(pages)) {
    await draw(browser, page, name, { width: 1280 });
    await draw(browser, page, `${name}-800`, { width: 800 });
    await draw(browser, page, `${name}-phone`, { width: 375, dark: true });
    await drawPaper(browser, page, `${name}-paper`);
  }
} finally {
  await browser.close();
  rmSync(scratch, { recursive: true });
}
