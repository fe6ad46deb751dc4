// Vorel's site in Debian's chromium, headless, served on 127.0.0.1.
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
