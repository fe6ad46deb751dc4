// Figures of the browser edition in headless chromium, the median of several
// loads: from the page's start to the start screen (the module loaded and the
// font measured) and to the main menu (after the start screen's two seconds),
// and from pressing Resolver on the economic order quantity to its painted
// report; then Resolver to painted for every example of every model,
// and the site's download. Needs `make web web-deps`:
// node bench/web-startup.mjs [RUNS].
import { readdirSync } from 'node:fs';
import {
  openSite, toMainMenu, press, onView, root, menuPaths, openModel,
} from '../web/tests/browser.mjs';
import { siteDownload } from '../web/tests/size.mjs';

const runs = Number(process.argv[2] ?? 7);
const median = (xs) => [...xs].sort((a, b) => a - b)[Math.floor(xs.length / 2)];
const figures = { start: [], menu: [], resolver: [] };
const site = await openSite();
const { page } = site;
for (let run = 0; run < runs; run += 1) {
  await toMainMenu(site);
  const marks = await page.evaluate(() => ({
    start: performance.getEntriesByName('vorel:AInicio')[0].startTime,
    menu: performance.getEntriesByName('vorel:APrincipal')[0].startTime,
  }));
  figures.start.push(marks.start);
  figures.menu.push(marks.menu);
  for (const picture of ['Image6', 'Image3', 'Image3']) await press(page, picture);
  await onView(page, 'GI_CantidadEconómicaPedido').waitFor();
  for (const [name, value] of [['D', '1000'], ['E', '50'], ['A', '4'], ['TS', '10'], ['dias', '250'], ['P', '2']]) {
    await page.fill(`input[name="${name}"]`, value);
  }
  figures.resolver.push(await page.evaluate(() => new Promise((done) => {
    const pressed = performance.now();
    document.querySelector('#escritorio button[name="Resolver"]').click();
    requestAnimationFrame(() => done(performance.now() - pressed));
  })));
}

// Every example that solves: Resolver pressed to the next frame painted.
const tree = await page.evaluate(() => window.vorel.tree);
const paths = menuPaths(tree);
const perExample = [];
for (const model of tree.screens.filter((s) => s.kind === 'entry' && s.model)) {
  const folder = `${root}/examples/${model.model}`;
  for (const file of readdirSync(folder).filter((f) => f.endsWith('.txt'))) {
    // Each on a fresh page: a method that never ends, or a run-time error, leaves the last busy.
    await openModel(site, paths[model.name], model.name, { fresh: true });
    const [chooser] = await Promise.all([page.waitForEvent('filechooser'), press(page, 'abrir')]);
    await chooser.setFiles(`${folder}/${file}`);
    await page.evaluate(() => window.vorel.reading);
    for (const name of model.presses.split(', ').filter(Boolean)) await press(page, name);
    const solved = await page.evaluate((solution) => new Promise((done) => {
      const pressed = performance.now();
      document.querySelector('#escritorio button[name="Resolver"]').click();
      requestAnimationFrame(() => {
        const painted = document.querySelector(`[data-screen="${solution}"] .informe[data-text]`);
        done(painted ? performance.now() - pressed : null);
      });
    }), model.solutions[0]);
    if (solved !== null) perExample.push({ example: `${model.model}/${file}`, ms: solved });
    if (await page.locator('dialog[open]').count()) await page.keyboard.press('Escape');
    if (await page.locator('dialog[open]').count()) await page.keyboard.press('Enter');
  }
}
await site.close();
const slowest = perExample.reduce((a, b) => (b.ms > a.ms ? b : a), { ms: 0 });
const download = siteDownload(`${root}/build-web/site`);
console.log(`runs: ${runs}`);
console.log(`load to start screen: ${median(figures.start).toFixed(0)} ms (median)`);
console.log(`load to main menu:    ${median(figures.menu).toFixed(0)} ms (median)`);
console.log(`Resolver to painted:  ${median(figures.resolver).toFixed(1)} ms (median)`);
console.log(`every example (${perExample.length} solved): median ${median(perExample.map((e) => e.ms)).toFixed(1)} ms,`
  + ` slowest ${slowest.ms.toFixed(1)} ms (${slowest.example})`);
console.log(`site download: ${(download.raw / 1024).toFixed(0)} KB, ${(download.gzip / 1024).toFixed(0)} KB gzipped`);
