// The decision models in the browser: the report pages browsed with their
// arrows (volver only from the first page, Alfa read as it stands), the
// payoff tables reshaped by Rediseñar Tabla with "Ps" over the row of
// probabilities, and the ELECTRE heads in their colours.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import {
  useSite, press, onView, root, openModel as openModelAt, abrir as abrirIn,
} from './browser.mjs';

let site;
let page;
let paths;
useSite((opened) => ({ site, page, paths } = opened));

const openModel = (screen) => openModelAt(site, paths[screen], screen);
const abrir = (id, file) => abrirIn(page, `${root}/examples/${id}/${file}`);

// The commands of the screen on view that show: browsing arrows and window commands.
async function shownCommands(screen, names) {
  const shown = [];
  for (const name of names) {
    if (await onView(page, screen).locator(`button[name="${name}"]`).isVisible()) shown.push(name);
  }
  return shown.sort();
}

// The page painted, by the criterion it shows.
async function painted(screen) {
  const box = onView(page, screen).locator('.informe[data-text]');
  await box.waitFor();
  return box.getAttribute('data-text');
}

test('uncertainty: each page shows its arrows, volver only the first, and Alfa decides the way to Hurwicz', async () => {
  const entry = 'DecisionIncertidumbre';
  const solution = 'DecisionIncertidumbre_solucion';
  const arrows = ['Back1', 'Continuar1', 'Continuar2', 'NoContinuar', 'NoContinuar2', 'forward1', 'forward2', 'volver'];
  await openModel(entry);
  // The entry's way back is named as on the desktop.
  assert.equal(await onView(page, entry).locator('.banda button[name="Image5"]').count(), 1);
  await abrir('incertidumbre', 'libro.txt');  // Alfa 0.4
  await press(page, 'Resolver');
  assert.match(await painted(solution), /CRITERIO DE WALD, MAXIMÍN O PESIMISTA/);
  assert.deepEqual(await shownCommands(solution, arrows), ['forward1', 'volver']);
  const steps = [
    ['forward1', / CRITERIO MAXIMAX U OPTIMISTA/, ['Back1', 'forward2']],
    ['forward2', /CRITERIO DE SAVAGE/, ['Continuar1', 'Continuar2']],
    ['Continuar1', /CRITERIO DE HURWICZ/, ['NoContinuar2']],
    ['NoContinuar2', /CRITERIO DE LAPLACE/, ['Continuar1', 'Continuar2']],
    ['Continuar2', / CRITERIO MAXIMAX U OPTIMISTA/, ['Back1', 'forward2']],
    ['Back1', /CRITERIO DE WALD/, ['forward1', 'volver']],
  ];
  for (const [arrow, criterion, shown] of steps) {
    await press(page, arrow);
    assert.match(await painted(solution), criterion, arrow);
    assert.deepEqual(await shownCommands(solution, arrows), shown, arrow);
  }
  // Back on the entry, an Alfa that is no number leaves Hurwicz out.
  await press(page, 'volver');
  await onView(page, entry).locator('input[name="Alfa"]').fill('abc');
  await press(page, 'Resolver');
  await press(page, 'forward1');
  await press(page, 'forward2');
  assert.match(await painted(solution), /CRITERIO DE SAVAGE/);
  assert.deepEqual(await shownCommands(solution, arrows), ['NoContinuar']);
});

test('uncertainty: Rediseñar Tabla shows the rows and columns chosen and takes the focus to the first cell', async () => {
  const entry = 'DecisionIncertidumbre';
  await openModel(entry);
  const screen = onView(page, entry);
  await abrir('incertidumbre', 'libro.txt');
  await screen.locator('select[name="NumAlternativas"]').selectOption('2');
  await screen.locator('select[name="NumEstados"]').selectOption('6');
  await press(page, 'RediseñarTabla');
  assert.equal(await screen.locator('input[name="C6(1)"]').isVisible(), true);
  assert.equal(await screen.locator('input[name="C7(1)"]').isVisible(), false);
  assert.equal(await screen.locator('input[name="C1(2)"]').isVisible(), false);
  assert.equal(await screen.locator('[name="LblEstados(5)"]').isVisible(), true);
  assert.equal(await screen.locator('[name="LblAlternativas(2)"]').isVisible(), false);
  assert.equal(await page.evaluate(() => document.activeElement.name), 'C1(0)');
  assert.equal(await screen.locator('input[name="C1(0)"]').inputValue(), '20');  // texts stay
});

test('risk: "Ps" heads the row below the last alternative, wherever Rediseñar puts it', async () => {
  const entry = 'DecisionRiesgoNobayesiano';
  await openModel(entry);
  const screen = onView(page, entry);
  assert.match(await screen.textContent(), /Ps: Probalididad de ocurrencia de los diferentes estados de la naturaleza/);
  await abrir('riesgo', 'libro.txt');  // five alternatives
  assert.equal(await screen.locator('[name="lblAlternativa(5)"]').textContent(), 'Ps');
  await screen.locator('select[name="NumAlternativas"]').selectOption('7');
  await press(page, 'RediseñarTabla');
  assert.equal(await screen.locator('[name="lblAlternativa(5)"]').textContent(), 'Alternativa 6');
  assert.equal(await screen.locator('[name="lblAlternativa(7)"]').textContent(), 'Ps');
  assert.equal(await screen.locator('input[name="C1(7)"]').isVisible(), true);
  // The arrows of its three pages.
  await screen.locator('select[name="NumAlternativas"]').selectOption('5');
  await press(page, 'RediseñarTabla');
  await press(page, 'Resolver');
  const solution = 'DecisionRiesgoNobayesiano_solucion';
  const arrows = ['Back1', 'back2', 'forward1', 'forward2', 'volver'];
  assert.deepEqual(await shownCommands(solution, arrows), ['forward1', 'volver']);
  await press(page, 'forward1');
  await press(page, 'forward2');
  assert.match(await painted(solution), /CRITERIO DEL VALOR MEDIO/);
  assert.deepEqual(await shownCommands(solution, arrows), ['back2']);
});

test('ELECTRE: the heads show in their colours, "Ponderación" after the last alternative', async () => {
  const entry = 'DecisionElectra1';
  await openModel(entry);
  const screen = onView(page, entry);
  const head = (k) => screen.locator(`[name="LblAlternativas(${k})"]`);
  const colour = (k) => head(k).evaluate((e) => getComputedStyle(e).backgroundColor);
  assert.equal(await head(4).textContent(), 'Ponderación');
  assert.equal(await colour(4), 'rgb(192, 192, 255)');
  assert.equal(await colour(0), 'rgb(192, 255, 192)');
  await screen.locator('select[name="NumAlternativas"]').selectOption('2');
  await press(page, 'RediseñarTabla');
  assert.equal(await head(2).textContent(), 'Ponderación');
  assert.equal(await colour(2), 'rgb(192, 192, 255)');
  assert.equal(await head(3).isVisible(), false);
  assert.equal(await screen.locator('input[name="C3(0)"]').isVisible(), true);
  assert.equal(await screen.locator('input[name="C4(0)"]').isVisible(), false);
});
