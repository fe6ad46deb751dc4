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

test('a new version replaces the kept one at the next start, and the old cache goes', async () => {
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
    // This visit finds and fetches it; one of the next runs it, whole.
    await site.page.reload();
    await onView(site.page, 'AInicio').waitFor({ timeout: 10000 });
    const fetched = () => site.page.evaluate(async () => Boolean((await navigator.serviceWorker.getRegistration()).waiting));
    for (let waited = 0; !(await fetched()) && waited < 100; waited += 1) await site.page.waitForTimeout(100);
    for (let tries = 0; tries < 3; tries += 1) {
      await site.page.reload();
      await onView(site.page, 'AInicio').waitFor({ timeout: 10000 });
      if (await site.page.locator('main[data-version="2"]').count()) break;
    }
    assert.equal(await site.page.locator('main[data-version="2"]').count(), 1);
    assert.deepEqual(await site.page.evaluate(() => caches.keys()), ['vorel-siguiente']);
  } finally {
    await site.close();
    rmSync(folder, { recursive: true, force: true });
  }
});
