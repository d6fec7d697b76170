// The page on paper, through a PDF file.
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import path from 'node:path';

import { withPage } from './browser.mjs';

// A PDF file has these in the order in which they are drawn.
const rightToLeft = /[\u0590-\u08ff]/;

const mostBytes = 512 * 1024 * 1024;

function run(program, ...args) {
  return execFileSync(program, args, { encoding: 'utf8', maxBuffer: mostBytes });
}

// Paper can't be scrolled: what does not fit is lost. Every word that the page shows must be within a
// sheet.
export async function checkPaper(browser, file) {
  const folder = mkdtempSync(path.join(tmpdir(), 'logchecker-paper-'));
  try {
    const pdf = path.join(folder, 'page.pdf');
    const { words, cut } = await withPage(browser, file, { paper: true }, async (page) => {
      const shown = await page.evaluate(() => ({
        words: [...new Set(document.body.innerText.split(/\s+/))],
        cut: [...document.querySelectorAll('body *')]
          .filter((element) => getComputedStyle(element).overflowX !== 'visible' &&
            element.scrollWidth > element.clientWidth + 1)
          .map((element) => element.outerHTML.slice(0, 120)),
      }));
      await page.pdf({ path: pdf, preferCSSPageSize: true, timeout: 300_000 });
      return shown;
    });
    assert.deepEqual(cut, [], 'nothing scrolls on paper');
    const boxes = run('pdftotext', '-bbox', pdf, '-');
    const sheet = Number(/<page width="([\d.]+)"/.exec(boxes)[1]);
    const outside = [...boxes.matchAll(/<word xMin="([-\d.]+)" .*?xMax="([\d.]+)".*?>(.*?)</g)]
      .filter(([, left, right]) => Number(left) < 0 || Number(right) > sheet)
      .map(([, , , word]) => word);
    assert.deepEqual(outside, [], 'no word runs over the edge of the sheet');
    const printed = run('pdftotext', pdf, '-').replace(/[\s\u00ad-]+/g, '');
    const lost = words.filter((word) => !rightToLeft.test(word) && !printed.includes(word.replace(/[\u00ad-]+/g, '')));
    assert.deepEqual(lost.slice(0, 10), [], 'every word is printed');
  } finally {
    rmSync(folder, { recursive: true });
  }
}
