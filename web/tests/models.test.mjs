// Every model whose screens the browser draws, through its menus as a student
// reaches it: each example file opened, solved, its report and its printed
// page equal to the golden texts, and saved back to the same bytes.
import { test, before, after } from 'node:test';
import assert from 'node:assert/strict';
import { readFileSync, readdirSync } from 'node:fs';
import {
  openSite, press, onView, root, menuPaths, openModel, messageBox, abrir,
} from './browser.mjs';

let site;
let page;
let models;
before(async () => {
  site = await openSite();
  ({ page } = site);
  await page.goto(site.url);
  await page.waitForFunction(() => Boolean(window.vorel?.tree));
  const tree = await page.evaluate(() => window.vorel.tree);
  const paths = menuPaths(tree);
  const only = process.env.VOREL_MODELS?.split(',');  // a few models only, while working on them
  models = tree.screens.filter((s) => s.kind === 'entry' && s.model
    && (!only || only.includes(s.model)))
    .map((s) => ({ id: s.model, screen: s.name, path: paths[s.name], presses: s.presses, solution: s.solutions[0] }));
});
after(async () => {
  assert.deepEqual(site.errors, []);
  await site.close();
});

const golden = (id, name, kind) => readFileSync(`${root}/tests/golden/${id}/${name}.${kind}`, 'utf8');

test('every model is reached through the menus', () => {
  assert.ok(models.length === (process.env.VOREL_MODELS ? process.env.VOREL_MODELS.split(',').length : 29));
  for (const model of models) assert.ok(model.path, `${model.screen} has a way in`);
});

// A solution screen that computes once, when it is first loaded, shows the
// same records for the rest of the run (GI_MRP_Solucion1): each example of
// its model starts a run of its own.
const ONE_RUN_EACH = new Set(['mrp']);

// The examples of one model: the checks' first message, a run-time error's
// box, or the solution's report, page and the saved file.
async function runExamples(model) {
  const folder = `${root}/examples/${model.id}`;
  for (const file of readdirSync(folder).filter((f) => f.endsWith('.txt'))) {
    const name = file.replace(/\.txt$/, '');
    await openModel(site, model.path, model.screen, { fresh: ONE_RUN_EACH.has(model.id) });
    await abrir(page, `${folder}/${file}`);
    const [download] = await Promise.all([page.waitForEvent('download'), press(page, 'guardar')]);
    assert.deepEqual(readFileSync(await download.path()), readFileSync(`${folder}/${file}`), `${file} saved`);
    // A command pressed before Resolver that tells a message ends the run there.
    let told = false;
    for (const name of model.presses.split(', ').filter(Boolean)) {
      await press(page, name);
      await page.evaluate(() => new Promise(requestAnimationFrame));
      told = (await page.locator('dialog.caja[open]').count()) > 0;
      if (told) break;
    }
    if (!told) await press(page, 'Resolver');
    const report = golden(model.id, name, 'report');
    if (report.startsWith('[salida 1]\n')) {
      // Every message of the checks, one box after another.
      for (const text of report.split('\n').slice(1).filter(Boolean)) {
        assert.deepEqual(await messageBox(page), { title: 'Error', text }, file);
        const box = await page.locator('dialog.caja[open]').elementHandle();
        await page.keyboard.press('Escape');
        await page.waitForFunction((shown) => !shown.isConnected, box);
      }
      await page.locator('dialog.caja').waitFor({ state: 'detached' });
      continue;
    }
    const runtime = report.match(/^\[salida 3\]\nError (\d+): (.*)\n$/);
    if (runtime) {
      const [, number, text] = runtime;
      assert.deepEqual(await messageBox(page),
        { title: 'Vorel', text: `Error en tiempo de ejecución '${number}':\n\n${text}` }, file);
      await page.keyboard.press('Enter');
      await onView(page, 'AInicio').waitFor();
      continue;
    }
    if (report.startsWith('[salida 4]\n')) {
      // A method that never ends: it runs in slices, the page answers, and
      // cerrar on its screen stops it.
      const solution = page.locator('#escritorio .solution');
      await solution.waitFor();
      await page.waitForTimeout(300);
      assert.equal(await solution.locator('.informe[data-text]').count(), 0, file);
      assert.equal(await solution.locator('button[name="Imprimir"]').isDisabled(), true, file);
      await press(page, 'cerrar');
      await solution.waitFor({ state: 'detached' });
      continue;
    }
    // The solution screen the fields call for: the one on view.
    const box = page.locator('#escritorio .solution .informe[data-text]');
    await box.waitFor();
    assert.equal(await box.getAttribute('data-text'), report, file);
    // Painted in lines, or in the cells of the screen's own.
    assert.ok(await box.locator('.linea span, input:not([hidden])').count() > 3, 'the report is painted');
    await page.evaluate(() => { window.print = () => { window.printed = true; }; });
    await press(page, 'Imprimir');
    // A text page waits in the gathered document until the student prints
    // it; a chart's page prints at once.
    const printedAtOnce = await page.evaluate(() => window.printed === true);
    assert.equal(printedAtOnce, await box.evaluate(() => Boolean(document.querySelector('.solution .grafico'))), file);
    if (!printedAtOnce) await page.locator('#barra button[name="imprimirReunidas"]').click();
    assert.equal(await page.evaluate(() => window.printed), true);
    await page.evaluate(() => { window.printed = false; });
    const sheet = page.locator('#impresion .impreso').last();
    assert.equal(await sheet.getAttribute('data-text'), golden(model.id, name, 'page'), file);
  }
}

test('every example of every model opens, saves, solves and prints as its goldens', async (t) => {
  for (const model of models) await t.test(model.id, () => runExamples(model));
});
