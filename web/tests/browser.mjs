// Vorel's site in Debian's chromium, headless, served on 127.0.0.1.
import { before, after } from 'node:test';
import assert from 'node:assert/strict';
import { chromium } from 'playwright-core';
import { fileURLToPath } from 'node:url';
import { serve } from '../serve.mjs';

export const root = fileURLToPath(new URL('../..', import.meta.url));

export async function openSite({ width = 1280, height = 900, folder = `${root}/build-web/site` } = {}) {
  const server = await serve(folder);
  const browser = await chromium.launch({
    executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium',
    args: ['--no-sandbox', '--disable-gpu', '--font-render-hinting=none'],
  });
  const context = await browser.newContext({ viewport: { width, height }, acceptDownloads: true });
  const page = await context.newPage();
  const errors = [];
  page.on('pageerror', (error) => errors.push(error));
  const url = `http://127.0.0.1:${server.address().port}/`;
  return {
    page, url, errors, context,
    async close() {
      await browser.close();
      server.close();
    },
  };
}

// The screen on view, by its name.
export const onView = (page, name) => page.locator(`#escritorio [data-screen="${name}"]`);

// Loads the page and waits for the main menu (after the start screen's two seconds).
export async function toMainMenu(site) {
  await site.page.goto(site.url);
  await onView(site.page, 'AInicio').waitFor();
  await onView(site.page, 'APrincipal').waitFor({ timeout: 10000 });
}

// Clicks a command picture of the screen on view.
export async function press(page, name) {
  await page.locator(`#escritorio button[name="${name}"]`).first().click();
}

// The pictures that lead from the main menu to every screen a menu shows.
export function menuPaths(tree) {
  const paths = { APrincipal: [] };
  for (let grown = true; grown;) {
    grown = false;
    for (const [name, menu] of Object.entries(tree.menus)) {
      if (!paths[name]) continue;
      for (const choice of menu.commands) {
        if (choice.target && !paths[choice.target]) {
          paths[choice.target] = [...paths[name], choice.name];
          grown = true;
        }
      }
    }
  }
  return paths;
}

// Through the menus to an entry screen by its pictures: from the screen on
// view by its gohome, or from a fresh page (always where `fresh`).
export async function openModel(site, path, screen, { fresh = false } = {}) {
  const { page } = site;
  const home = page.locator('#escritorio .banda button[name="gohome"]');
  if (!fresh && (await page.evaluate(() => Boolean(window.vorel))) && (await home.count())) {
    await home.click();
    await onView(page, 'APrincipal').waitFor();
  } else {
    await toMainMenu(site);
  }
  for (const picture of path) await press(page, picture);
  await onView(page, screen).waitFor();
}

// The message box on view: its title and text.
export async function messageBox(page) {
  const box = page.locator('dialog.caja[open]');
  await box.waitFor();
  return { title: await box.locator('header').textContent(), text: await box.locator('.texto').textContent() };
}

// abrir of a file through the page's file picker.
export async function abrir(page, path) {
  const [chooser] = await Promise.all([page.waitForEvent('filechooser'), press(page, 'abrir')]);
  await chooser.setFiles(path);
  await page.evaluate(() => window.vorel.reading);
}

// A test file's site: opened before its tests, the screen tree read, and
// closed after them with no error thrown in the page. `ready` receives
// {site, page, paths}.
export function useSite(ready) {
  let site;
  before(async () => {
    site = await openSite();
    const { page } = site;
    await page.goto(site.url);
    await page.waitForFunction(() => Boolean(window.vorel?.tree));
    ready({ site, page, paths: menuPaths(await page.evaluate(() => window.vorel.tree)) });
  });
  after(async () => {
    assert.deepEqual(site.errors, []);
    await site.close();
  });
}
