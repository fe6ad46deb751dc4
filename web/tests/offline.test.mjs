// The site works offline once visited, and a new version replaces the kept
// one whole.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { cpSync, mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { openSite, toMainMenu, press, onView, root } from './browser.mjs';

// A visit that leaves the page controlled by the service worker.
async function visit(site) {
  await toMainMenu(site);
  await site.page.evaluate(() => navigator.serviceWorker.ready);
  await site.page.waitForFunction(() => navigator.serviceWorker.controller !== null);
}

test('once visited, the site opens and solves with the network cut off', async () => {
  const site = await openSite();
  try {
    await visit(site);
    await site.context.setOffline(true);
    await site.page.reload();
    await onView(site.page, 'APrincipal').waitFor({ timeout: 10000 });
    for (const picture of ['Image6', 'Image3', 'Image3']) await press(site.page, picture);
    for (const [name, value] of [['D', '1000'], ['E', '50'], ['A', '4'], ['TS', '10'], ['dias', '250'], ['P', '2']]) {
      await site.page.fill(`input[name="${name}"]`, value);
    }
    await press(site.page, 'Resolver');
    const report = site.page.locator('#escritorio .informe');
    await report.waitFor();
    assert.match(await report.getAttribute('data-text'), /Coste Total de Inventario:\s+2632\.456 u\.m\./);
    await press(site.page, 'volver');
    await press(site.page, 'ayuda');  // the help pages are kept too
    await site.page.frameLocator('dialog.ayuda iframe').locator('h1').first().waitFor();
    assert.deepEqual(site.errors, []);
  } finally {
    await site.close();
  }
});

test('a new version is kept whole, replaces the old one and runs at the next start', async () => {
  const folder = mkdtempSync(join(tmpdir(), 'vorel-site-'));
  cpSync(`${root}/build-web/site`, folder, { recursive: true });
  const site = await openSite({ folder });
  try {
    await visit(site);
    // The next version: a changed page and its new list.
    const page = join(folder, 'index.html');
    writeFileSync(page, readFileSync(page, 'utf8').replace('<main', '<main data-version="2"'));
    const list = join(folder, 'precache.js');
    writeFileSync(list, readFileSync(list, 'utf8').replace(/"version": "[0-9a-f]+"/, '"version": "siguiente"'));
    // The browser's check for a new version (at a visit, or now) fetches it
    // whole, then it takes over; the page keeps what it runs.
    await site.page.evaluate(async () => (await navigator.serviceWorker.getRegistration()).update());
    const kept = () => site.page.evaluate(async () => (await caches.keys()).join());
    for (let waited = 0; (await kept()) !== 'vorel-siguiente' && waited < 100; waited += 1) {
      await site.page.waitForTimeout(200);
    }
    assert.equal(await site.page.locator('main[data-version="2"]').count(), 0);
    await onView(site.page, 'APrincipal').waitFor();
    // The next start runs the new version.
    await site.page.reload();
    await onView(site.page, 'AInicio').waitFor();
    assert.equal(await site.page.locator('main[data-version="2"]').count(), 1);
    assert.deepEqual(await site.page.evaluate(() => caches.keys()), ['vorel-siguiente']);
  } finally {
    await site.close();
    rmSync(folder, { recursive: true, force: true });
  }
});
