// The linear-programming screens in Debian's chromium: the assignments and
// the simplex optima browsed page by page with only the moves that exist,
// volver greyed on the simplex's second solution, Rediseñar Tabla, and a
// degenerate transport sent back to its entry.
import { test, before, after } from 'node:test';
import assert from 'node:assert/strict';
import {
  openSite, press, onView, root, openModel, messageBox, abrir,
} from './browser.mjs';

let site;
let page;
before(async () => {
  site = await openSite();
  ({ page } = site);
});
after(async () => {
  assert.deepEqual(site.errors, []);
  await site.close();
});

const ASIGNACION = { screen: 'PL_Asignación', solution: 'PL_Asignación_Solución', path: ['Picture2', 'Image7'] };
const TRANSPORTES = { screen: 'PL_Transportes', solution: 'PL_Transportes_Solución', path: ['Picture2', 'Image8'] };
const SIMPLEX = { screen: 'PL_Simplex', solution: 'PL_Simplex_Solucion', path: ['Picture2', 'Image3'] };

// Opens an example of a model and presses Resolver.
async function solveExample(model, folder, file) {
  await openModel(site, model.path, model.screen);
  await abrir(page, `${root}/examples/${folder}/${file}`);
  await press(page, 'Resolver');
  await onView(page, model.solution).locator('.informe[data-text]').waitFor();
}

const reportText = (model) => onView(page, model.solution).locator('.informe').getAttribute('data-text');

// The browsing commands of the solution on view that show.
async function offered(model, names) {
  const shown = [];
  for (const name of names) {
    if (await onView(page, model.solution).locator(`.ordenes button[name="${name}"]`).isVisible()) shown.push(name);
  }
  return shown.sort();
}

test('three optimal assignments are browsed one at a time, each page offering its moves', async () => {
  const names = ['Back1', 'back2', 'forward1', 'forward2'];
  await solveExample(ASIGNACION, 'asignacion', 'costes-iguales.txt');
  const steps = [
    [null, 1, ['forward1']], ['forward1', 2, ['Back1', 'forward2']], ['forward2', 3, ['back2']],
    ['back2', 2, ['Back1', 'forward2']], ['Back1', 1, ['forward1']],
  ];
  const pages = new Map();
  for (const [command, solution, moves] of steps) {
    if (command) await press(page, command);
    const text = await reportText(ASIGNACION);
    for (const k of [1, 2, 3]) assert.equal(text.includes(`SOLUCIÓN ${k}`), k === solution, `${command}: ${k}`);
    assert.deepEqual(await offered(ASIGNACION, names), moves.sort(), command);
    if (!pages.has(solution)) pages.set(solution, text);
    assert.equal(text, pages.get(solution));
  }
  assert.equal(new Set(pages.values()).size, 3);
});

test('Rediseñar Tabla shows the chosen individuals by tasks and takes the focus to the table', async () => {
  await openModel(site, ASIGNACION.path, ASIGNACION.screen);
  const entry = onView(page, ASIGNACION.screen);
  await entry.locator('input[name="C2(1)"]').fill('7');
  await page.selectOption('select[name="NumIndividuos"]', '3');
  await page.selectOption('select[name="NumTareas"]', '5');
  await press(page, 'RediseñarTabla');
  const shown = (name) => entry.locator(`[name="${name}"]`).isVisible();
  assert.deepEqual(
    [await shown('C5(2)'), await shown('C6(2)'), await shown('C5(3)'), await shown('LblTareas(4)'), await shown('LblIndividuos(3)')],
    [true, false, false, true, false],
  );
  assert.equal(await page.evaluate(() => document.activeElement.name), 'C1(0)');
  assert.equal(await entry.locator('input[name="C2(1)"]').inputValue(), '7');
});

test('a degenerate first solution tells its message and goes back to the entry as it was', async () => {
  await openModel(site, TRANSPORTES.path, TRANSPORTES.screen);
  await abrir(page, `${root}/examples/transporte/degenerada.txt`);
  const title = await onView(page, TRANSPORTES.screen).locator('input[name="Título"]').inputValue();
  await press(page, 'Resolver');
  assert.deepEqual(await messageBox(page), { title: 'Error', text: 'la solución es degenerada' });
  await page.keyboard.press('Escape');
  await onView(page, TRANSPORTES.screen).waitFor();
  assert.equal(await onView(page, TRANSPORTES.solution).count(), 0);
  assert.equal(await onView(page, TRANSPORTES.screen).locator('input[name="Título"]').inputValue(), title);
});

test('the supplies and demands are captioned after the last origin and destination', async () => {
  await openModel(site, TRANSPORTES.path, TRANSPORTES.screen);
  const entry = onView(page, TRANSPORTES.screen);
  await page.selectOption('select[name="NumOrigen"]', '3');
  await page.selectOption('select[name="NumDestino"]', '4');
  await press(page, 'RediseñarTabla');
  assert.equal(await entry.locator('[name="LblOrigen(3)"]').textContent(), 'Demandas');
  assert.equal(await entry.locator('[name="LblDestino(4)"]').textContent(), 'Existencias');
  assert.equal(await entry.locator('[name="C5(2)"]').isVisible(), true);
  assert.equal(await entry.locator('[name="C5(3)"]').isVisible(), false);
});

test('the simplex browses two optima, and volver waits while the second shows', async () => {
  await solveExample(SIMPLEX, 'simplex', 'alternativa.txt');
  const volver = onView(page, SIMPLEX.solution).locator('.banda button[name="volver"]');
  const first = await reportText(SIMPLEX);
  assert.deepEqual(await offered(SIMPLEX, ['back', 'forward']), ['forward']);
  assert.equal(await volver.isDisabled(), false);
  await press(page, 'forward');
  assert.ok((await reportText(SIMPLEX)).includes('SOLUCIÓN 2 '));
  assert.deepEqual(await offered(SIMPLEX, ['back', 'forward']), ['back']);
  assert.equal(await volver.isDisabled(), true);
  await press(page, 'back');
  const back = await reportText(SIMPLEX);
  assert.ok(back.includes('SOLUCIÓN 1 ') && back !== first);
  assert.deepEqual(await offered(SIMPLEX, ['back', 'forward']), ['forward']);
  assert.equal(await volver.isDisabled(), false);
  await volver.click();
  await onView(page, SIMPLEX.screen).waitFor();
});

test('the simplex table holds a relation selector per shown constraint', async () => {
  await openModel(site, SIMPLEX.path, SIMPLEX.screen);
  const entry = onView(page, SIMPLEX.screen);
  await page.selectOption('select[name="Numrestricciones"]', '4');
  await press(page, 'RediseñarTabla');
  assert.equal(await entry.locator('select[name="restriccion(3)"]').isVisible(), true);
  assert.equal(await entry.locator('select[name="restriccion(4)"]').isVisible(), false);
  assert.equal(await entry.locator('[name="existencias(4)"]').isVisible(), true);
  // The choice reaches the fields: the table drawn again from them keeps it.
  await page.selectOption('select[name="restriccion(3)"]', '>=');
  await press(page, 'RediseñarTabla');
  assert.equal(await entry.locator('select[name="restriccion(3)"]').inputValue(), '>=');
});
