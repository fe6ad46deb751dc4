// The layout screens in the browser: Rediseñar Tabla shapes the tables the
// selectors ask for and leaves the focus in the first cell; the load-distance
// tables stand side by side with heads over several cells; line balancing's
// lower table brings its captions with its first activity, and a cycle of
// precedences runs in slices until cerrar, leaving the page free for the next
// problem.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import {
  useSite, press, onView, root, openModel, abrir,
} from './browser.mjs';

let site;
let page;
let paths;
useSite((opened) => ({ site, page, paths } = opened));

const CARGA = 'Distribucion_CargaDistancia';
const EQUILIBRADO = 'Distribucion_Equlibrado';
const shown = (name) => page.locator(`#escritorio [name="${name}"]`).isVisible();
const focused = () => page.evaluate(() => document.activeElement.name);
const box = (name) => page.locator(`#escritorio [name="${name}"]`).boundingBox();

test('load-distance: Rediseñar Tabla shapes the routes and both blocks of distances', async () => {
  await openModel(site, paths[CARGA], CARGA);
  assert.equal(await shown('C3(4)'), true);
  assert.equal(await shown('C4(0)'), false);
  await page.selectOption('select[name="NumActividades"]', '5');
  await page.selectOption('select[name="NumDistancias"]', '10');
  assert.equal(await shown('C4(0)'), false, 'a choice alone shapes nothing');
  await press(page, 'RediseñarTabla');
  for (const name of ['C5(4)', 'LblActividades(4)', 'Produccion(4)', 'D2(9)', 'Lbldistancias(1)']) {
    assert.equal(await shown(name), true, name);
  }
  for (const name of ['C6(0)', 'Produccion(5)', 'Distancias(10)']) assert.equal(await shown(name), false, name);
  assert.equal(await focused(), 'C1(0)');
});

test('load-distance: the tables stand side by side, the route heads over their cells', async () => {
  await openModel(site, paths[CARGA], CARGA);
  const [routes, distances] = await page.locator(`#escritorio .tabla`).all();
  const [a, b] = [await routes.boundingBox(), await distances.boundingBox()];
  assert.ok(b.x >= a.x + a.width && Math.abs(b.y - a.y) < 2, 'the distances beside the routes');
  const secuencia = await routes.getByText('Secuencia', { exact: true }).boundingBox();
  const [first, last] = [await box('C1(0)'), await box('C1(4)')];
  assert.ok(secuencia.x <= first.x + 1 && secuencia.x + secuencia.width >= last.x + last.width - 1);
  // The production is wider than a department of a route.
  assert.ok((await box('Produccion(0)')).width > (await box('C1(0)')).width + 20);
  const departamentos = await box('LblDepartamentos(0)');
  assert.ok(departamentos.width >= (await box('D1(0)')).width + (await box('D2(0)')).width);
});

test('line balancing: the lower table and its captions show from the eighth activity', async () => {
  await openModel(site, paths[EQUILIBRADO], EQUILIBRADO);
  assert.equal(await shown('RotuloTiempos2'), false);
  await page.selectOption('select[name="NumActividades"]', '9');
  await press(page, 'RediseñarTabla');
  for (const name of ['RotuloTiempos2', 'RotuloAnteriores2', 'LblActividades(8)', 'C2(9)']) {
    assert.equal(await shown(name), true, name);
  }
  assert.equal(await shown('C3(5)'), false);
  assert.equal(await focused(), 'TiempoOperacion(0)');
  // The predecessors' caption covers their five rows, from the top.
  const caption = await box('RotuloAnteriores2');
  assert.ok(caption.y <= (await box('C1(5)')).y + 4);
  const lower = await page.locator('#escritorio .tabla').nth(1).boundingBox();
  const upper = await page.locator('#escritorio .tabla').nth(0).boundingBox();
  assert.ok(lower.y >= upper.y + upper.height, 'one table below the other');
});

test('line balancing: a cycle runs until cerrar, and the next problem solves', async () => {
  await openModel(site, paths[EQUILIBRADO], EQUILIBRADO);
  await abrir(page, `${root}/examples/equilibrado/ciclo.txt`);
  await press(page, 'Resolver');
  const solution = onView(page, 'Distribucion_Equilibrado_Solucion');
  await solution.waitFor();
  await page.waitForTimeout(300);
  assert.equal(await solution.locator('button[name="Imprimir"]').isDisabled(), true);
  // The page answers meanwhile: minimizar and back.
  await press(page, 'minimizar');
  await page.locator('#barra button[name="Distribucion_Equilibrado_Solucion"]').click();
  await solution.waitFor();
  assert.equal(await solution.locator('.informe[data-text]').count(), 0);
  await press(page, 'cerrar');
  await solution.waitFor({ state: 'detached' });
  await openModel(site, paths[EQUILIBRADO], EQUILIBRADO);
  await abrir(page, `${root}/examples/equilibrado/libro.txt`);
  await press(page, 'Resolver');
  const report = onView(page, 'Distribucion_Equilibrado_Solucion').locator('.informe[data-text]');
  await report.waitFor();
  assert.match(await report.getAttribute('data-text'), /Solución al problema: {2}Línea de montaje/);
  assert.equal(await onView(page, 'Distribucion_Equilibrado_Solucion').locator('button[name="Imprimir"]').isDisabled(), false);
});

test('on a phone the tables scroll inside their panels, and a table with nothing shown is not drawn', async () => {
  await page.setViewportSize({ width: 360, height: 740 });
  try {
    for (const screen of [CARGA, EQUILIBRADO]) {
      await openModel(site, paths[screen], screen);
      assert.ok(await page.evaluate(() => document.documentElement.scrollWidth <= 360), screen);
      for (const table of await page.locator('#escritorio .tabla').all()) {
        if (!(await table.isVisible())) continue;
        const { x, width } = await table.boundingBox();
        assert.ok(x >= 0 && x + width <= 360, `${screen}: the table panel stays on the screen`);
      }
    }
    // Five activities: the lower table holds none of them.
    assert.equal(await page.locator('#escritorio .tabla').nth(1).isVisible(), false);
  } finally {
    await page.setViewportSize({ width: 1280, height: 900 });
  }
});
