// The games in the browser: the two commands of the games of two and three
// players print on their panels before Resolver and mark the cells of the
// pure equilibria, a refused game hides the panels, nuevo blanks the screen;
// Rediseñar tabla reshapes the table of games with n strategies and keeps
// what hidden cells hold.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { useSite, press, onView, root, openModel, messageBox, abrir } from './browser.mjs';

let site;
let page;
let paths;
useSite((opened) => ({ site, page, paths } = opened));

const open = (screen) => openModel(site, paths[screen], screen);
const panel = (name) => onView(page, 'Juegos_2').locator(`[name="${name}"]`);
const cell = (name) => page.locator(`#escritorio input[name="${name}"]`);
async function told(expected) {
  assert.deepEqual(await messageBox(page), { title: 'Error', text: expected });
  await page.keyboard.press('Escape');
  await page.locator('dialog.caja').waitFor({ state: 'detached' });
}

test('Juegos_2: the commands fill their panels, Resolver needs them, nuevo hides them', async () => {
  await open('Juegos_2');
  assert.deepEqual([await panel('SPuras').isVisible(), await panel('SMixtas').isVisible()], [false, false]);
  await press(page, 'Resolver');
  await told('Debe calcular primero los equilibrios en estrategias puras y mixtas');

  // Two pure equilibria, (2,1) and (1,2), and J1 plays Decisión 1 with p = 2/3.
  const payoffs = { 'E1(0)': '2', 'E1(1)': '1', 'E2(0)': '0', 'E2(1)': '0',
    'E3(0)': '0', 'E3(1)': '0', 'E4(0)': '1', 'E4(1)': '2' };
  for (const [name, value] of Object.entries(payoffs)) await cell(name).fill(value);
  await press(page, 'EstPuras');
  assert.equal(await panel('SPuras').isVisible(), true);
  assert.equal(await panel('SMixtas').isVisible(), false);
  assert.equal(await panel('SPuras').textContent(), 'Equilibrio:   (2,1)\nEquilibrio:   (1,2)\n');
  const marked = () => page.locator('#escritorio input.marcada').evaluateAll((cells) => cells.map((c) => c.name));
  assert.deepEqual(await marked(), ['E1(0)', 'E1(1)', 'E4(0)', 'E4(1)']);
  await press(page, 'EstMixtas');
  assert.match(await panel('SMixtas').textContent(), /^J1 juega:\nDecisión1 con p =  \.6666667\n/);
  await press(page, 'Resolver');
  const report = onView(page, 'Juegos_2_Solucion').locator('.informe[data-text]');
  await report.waitFor();
  assert.match(await report.getAttribute('data-text'), /EQUILIBRIOS EN ESTRATEGIAS MIXTAS:/);

  await press(page, 'volver');
  await onView(page, 'Juegos_2').waitFor();
  assert.equal(await panel('SPuras').isVisible(), true, 'the panels stay while the screen is hidden');
  await press(page, 'nuevo');
  assert.equal(await cell('E4(1)').inputValue(), '');
  assert.equal(await cell('Titulo1').inputValue(), '');
  assert.deepEqual([await panel('SPuras').isVisible(), await panel('SMixtas').isVisible()], [false, false]);
  assert.deepEqual(await marked(), []);
  // What was computed stays: Resolver reports it.
  await press(page, 'Resolver');
  await onView(page, 'Juegos_2_Solucion').locator('.informe[data-text]').waitFor();
});

test('Juegos_2: a game of four equilibria is refused and hides both panels; a bad cell stops a command', async () => {
  await open('Juegos_2');
  await abrir(page, `${root}/examples/juegos2/dilema-del-prisionero.txt`);
  await press(page, 'EstPuras');
  await press(page, 'EstMixtas');
  assert.deepEqual([await panel('SPuras').isVisible(), await panel('SMixtas').isVisible()], [true, true]);
  for (const name of ['E1(0)', 'E1(1)', 'E2(0)', 'E2(1)', 'E3(0)', 'E3(1)', 'E4(0)', 'E4(1)']) await cell(name).fill('1');
  await press(page, 'EstPuras');
  await told('No se puede dar esta situación de juego');
  assert.deepEqual([await panel('SPuras').isVisible(), await panel('SMixtas').isVisible()], [false, false]);
  await cell('E3(1)').fill('uno');
  await press(page, 'EstMixtas');
  await told('Todas las celdas deben contener un valor numérico');
  assert.equal(await panel('SMixtas').isVisible(), false);
});

test('Juegos_3: EstMixtas prints the symmetric equilibrium or its absence', async () => {
  await open('Juegos_3');
  await abrir(page, `${root}/examples/juegos3/sin-raiz-real.txt`);
  await press(page, 'EstMixtas');
  const mixtas = onView(page, 'Juegos_3').locator('[name="SMixtas"]');
  assert.equal(await mixtas.textContent(), 'No existen equilibrios en estrategias mixtas\n');
  assert.equal(await onView(page, 'Juegos_3').locator('[name="SPuras"]').isVisible(), false);
});

test('Juegos_n: Rediseñar tabla shows the chosen shape, focuses the first cell and keeps hidden texts', async () => {
  await open('Juegos_n');
  const shown = async (names) => Promise.all(names.map((n) => page.locator(`#escritorio [name="${n}"]`).isVisible()));
  assert.deepEqual(await shown(['A(1)', 'B(1)', 'A2(1)', 'A(2)', 'A3(0)']), [true, true, true, false, false]);
  await cell('A2(1)').fill('7');
  await page.selectOption('select[name="NDecA"]', '3');
  await page.selectOption('select[name="NDecB"]', '1');
  assert.deepEqual(await shown(['A(2)', 'A1(2)']), [false, false], 'a choice alone changes nothing');
  await press(page, 'Rediseñar');
  assert.deepEqual(await shown(['A(2)', 'B(0)', 'A1(2)', 'B(1)', 'A2(1)']), [true, true, true, false, false]);
  assert.equal(await page.evaluate(() => document.activeElement.name), 'A1(0)');
  await page.selectOption('select[name="NDecB"]', '2');
  await press(page, 'Rediseñar');
  assert.equal(await cell('A2(1)').inputValue(), '7');
  // Resolver's checks: the first bad visible cell, element by element down
  // the arrays, focused.
  await cell('A1(0)').fill('1');
  await press(page, 'Resolver');
  await told('Debe completar la tabla de resultados');
  assert.equal(await page.evaluate(() => document.activeElement.name), 'A2(0)');
});
