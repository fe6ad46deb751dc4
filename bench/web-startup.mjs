// Figures of the browser edition in headless chromium, the median of several
// loads: from the page's start to the start screen (the module loaded and the
// font measured) and to the main menu (after the start screen's two seconds),
// and from pressing Resolver on the economic order quantity to its painted
// report. Needs `make web web-deps`: node bench/web-startup.mjs [RUNS].
import { openSite, toMainMenu, press, onView } from '../web/tests/browser.mjs';

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
await site.close();
console.log(`runs: ${runs}`);
console.log(`load to start screen: ${median(figures.start).toFixed(0)} ms (median)`);
console.log(`load to main menu:    ${median(figures.menu).toFixed(0)} ms (median)`);
console.log(`Resolver to painted:  ${median(figures.resolver).toFixed(1)} ms (median)`);
