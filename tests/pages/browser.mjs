// The browser, and a page in it.
import { createRequire } from 'node:module';
import { pathToFileURL } from 'node:url';

// The packages of npm lie outside the checkout.
export const tools = createRequire(`${process.env.LOGCHECKER_PAGE_TOOLS}/package.json`);

const executable = process.env.CHROMIUM ?? '/usr/bin/chromium';

// Chromium refuses its sandbox to root, and calls its maker's servers unless told not to.
const quiet = [
  '--disable-background-networking',
  '--disable-component-update',
  '--disable-gpu',
  '--disable-quic',
  '--disable-sync',
  '--font-render-hinting=none',
  '--no-first-run',
];

export function startBrowser() {
  const asRoot = process.getuid?.() === 0 ? ['--no-sandbox'] : [];
  return tools('puppeteer-core').launch({
    executablePath: executable,
    headless: true,
    args: [...quiet, ...asRoot],
    protocolTimeout: 300_000,
  });
}

// What a page did while it was loaded, beside showing itself.
class Doings {
  requests = []; // addresses
  scripts = []; // addresses, "" for one within the page
  messages = []; // what the browser had to say, such as what the policy refused
}

// Opens the file in a tab of its own. `options`: width in CSS pixels, dark, paper (as if printed),
// bypass (the policy of the page does not count).
export async function openPage(browser, file, options = {}) {
  const { width = 1280, dark = false, paper = false, bypass = false } = options;
  const page = await browser.newPage();
  await page.setViewport({ width, height: 800 });
  await page.setBypassCSP(bypass);
  await page.emulateMediaFeatures([
    { name: 'prefers-color-scheme', value: dark ? 'dark' : 'light' },
  ]);

  const doings = new Doings();
  const address = pathToFileURL(file).href;
  const debug = await page.createCDPSession();
  await debug.send('Debugger.enable');
  debug.on('Debugger.scriptParsed', (script) => {
    if (!script.url.startsWith('pptr:')) doings.scripts.push(script.url);
  });
  page.on('console', (message) => doings.messages.push(message.text()));
  page.on('pageerror', (error) => doings.messages.push(String(error)));
  await page.setRequestInterception(true);
  page.on('request', (request) => {
    doings.requests.push(request.url());
    if (request.url() === address) request.continue();
    else request.abort();
  });
  await page.goto(address, { waitUntil: 'load', timeout: 300_000 });
  // The colours of a screen take it back when the page is loaded.
  if (paper) await page.emulateMediaType('print');
  return { page, doings, address };
}

// Opens the file, hands the page to `work`, closes it, and gives what `work` gave.
export async function withPage(browser, file, options, work) {
  const { page, doings, address } = await openPage(browser, file, options);
  try {
    return await work(page, doings, address);
  } finally {
    await page.close();
  }
}
