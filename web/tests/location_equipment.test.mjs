// Location and equipment selection in the browser: what reshapes the tables
// (Rediseñar, a selector's choice), the durations chosen by their text, the
// options that show the third option and choose the solution screen, and the
// chart on screen and on the printed page.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import {
  useSite, press, onView, root, openModel, abrir,
} from './browser.mjs';

let site;
let page;
let paths;
useSite((opened) => ({ site, page, paths } = opened));

const open = (screen) => openModel(site, paths[screen], screen);
const control = (screen, name) => onView(page, screen).locator(`[name="${name}"]`);
const hidden = (screen, name) => control(screen, name).evaluate((e) => e.hidden);
const focused = () => page.evaluate(() => document.activeElement?.name);

test('Rediseñar takes the table to the shape its selectors say, the focus in its first cell', async () => {
  await open('Localizacion_CG');
  assert.equal(await hidden('Localizacion_CG', 'Q(9)'), true);
  await control('Localizacion_CG', 'NLoc').selectOption('10');
  assert.equal(await hidden('Localizacion_CG', 'Q(9)'), true, 'the choice alone reshapes nothing');
  await press(page, 'Rediseñar');
  assert.equal(await hidden('Localizacion_CG', 'Q(9)'), false);
  assert.equal(await focused(), 'localiz(0)');

  await open('Localizacion_PF');
  await control('Localizacion_PF', 'NLoc').selectOption('6');
  await press(page, 'Rediseñar');
  for (const [name, shown] of [['Puntuaciones6', true], ['L(5)', true], ['f3(5)', true], ['f4(5)', false]]) {
    assert.equal(await hidden('Localizacion_PF', name), !shown, name);
  }
  assert.equal(await focused(), 'flocaliz(0)');
});

test('the count of factors of Selec_Pond reshapes its table as it is chosen', async () => {
  await open('Selec_Pond');
  await control('Selec_Pond', 'NFact').selectOption('1');
  assert.equal(await hidden('Selec_Pond', 'PuntuaB(0)'), false);
  assert.equal(await hidden('Selec_Pond', 'PuntuaB(1)'), true);
  await control('Selec_Pond', 'NFact').selectOption('4');
  assert.equal(await hidden('Selec_Pond', 'factor(3)'), false);
});

test('the durations of the investments are the texts chosen; Rediseñar shows their years and heads', async () => {
  await open('Selec_Van');
  // A selector that holds its text: chosen from its list or typed, as on the desktop.
  await control('Selec_Van', 'NVarA').fill('5');
  await press(page, 'Rediseñar');
  for (const [name, shown] of [['AX1(4)', true], ['AX2(4)', false], ['LblAño(4)', true], ['LblAño(5)', false]]) {
    assert.equal(await hidden('Selec_Van', name), !shown, name);
  }
  const fields = await page.evaluate(() => window.vorel.core.fields('Selec_Van'));
  assert.equal(fields.NVarA.text, '5');
  assert.equal(fields.NVarB.text, '2');
});

test('the options show the third option; the solution draws its chart and prints it at its place', async () => {
  await open('Select_C_Totales');
  await abrir(page, `${root}/examples/costes-totales/dos-opciones.txt`);
  for (const name of ['txtCF3', 'LblCF3', 'txtCV3', 'LblCV3']) {
    assert.equal(await hidden('Select_C_Totales', name), true, name);
  }
  await control('Select_C_Totales', 'Option2').check();
  for (const name of ['txtCF3', 'LblCF3', 'txtCV3', 'LblCV3']) {
    assert.equal(await hidden('Select_C_Totales', name), false, name);
  }
  assert.equal(await control('Select_C_Totales', 'Option1').isChecked(), false);
  await control('Select_C_Totales', 'txtCF3').fill('500');
  await control('Select_C_Totales', 'txtCV3').fill('1');
  await press(page, 'Resolver');
  const solution = onView(page, 'Select_C_Totales_Sol1');
  await solution.locator('.informe[data-text]').waitFor();
  assert.equal(await solution.locator('figure.grafico svg').count(), 1);

  await page.evaluate(() => { window.print = () => { window.printed = true; }; });
  await press(page, 'Imprimir');
  assert.equal(await page.evaluate(() => window.printed), true);
  const placed = page.locator('#impresion .grafico-impreso');
  assert.equal(await placed.locator('svg').count(), 1);
  const { left, top, pageLeft, pageTop, height } = await page.evaluate(() => {
    const chart = window.vorel.loaded.get('Select_C_Totales_Sol1').pages.chart;
    const box = document.querySelector('#impresion .grafico-impreso');
    return {
      left: parseFloat(box.style.left), top: parseFloat(box.style.top),
      pageLeft: chart.pageLeft, pageTop: chart.pageTop,
      height: parseFloat(document.querySelector('#impresion .impreso:last-child').style.height),
    };
  });
  assert.ok(Math.abs(left - 718 * pageLeft) < 0.01, `left ${left}`);
  assert.ok(Math.abs(top - 1047 * pageTop) < 0.01, `top ${top}`);
  assert.equal(height, 1047, 'a chart page is a page of its own');

  // Back to two options: the screen of two options, and the third option's fields hidden.
  // cerrar unloads the screens: a problem of three options is opened again.
  await press(page, 'cerrar');
  await open('Select_C_Totales');
  await abrir(page, `${root}/examples/costes-totales/tres-opciones.txt`);
  assert.equal(await hidden('Select_C_Totales', 'txtCF3'), false);
  await control('Select_C_Totales', 'Option1').check();
  assert.equal(await hidden('Select_C_Totales', 'txtCF3'), true);
  await press(page, 'Resolver');
  await onView(page, 'Select_C_Totales_Sol').locator('.informe[data-text]').waitFor();
  await page.evaluate(() => { window.print = () => {}; });
  await press(page, 'Imprimir');
  assert.equal(await page.locator('#impresion .grafico-impreso svg').count(), 1);
});

test('a page without a chart prints no chart', async () => {
  await open('Localizacion_CG');
  await abrir(page, `${root}/examples/centro-gravedad/libro.txt`);
  await press(page, 'Resolver');
  await onView(page, 'Localizacion_CG_Solucion').locator('.informe[data-text]').waitFor();
  await page.evaluate(() => { window.print = () => { window.printed = (window.printed ?? 0) + 1; }; });
  await press(page, 'Imprimir');
  await press(page, 'Imprimir');
  // Text pages gather, each after the last, until the student prints them.
  assert.equal(await page.evaluate(() => window.printed), undefined);
  const sheets = page.locator('#impresion .impreso');
  assert.equal(await sheets.count(), 2);
  assert.equal(await page.locator('#impresion .grafico-impreso').count(), 0);
  assert.equal(await sheets.last().evaluate((e) => e.style.height), '');
  await page.locator('#barra button[name="imprimirReunidas"]').click();
  assert.equal(await page.evaluate(() => window.printed), 1);
  assert.equal(await page.locator('#barra button[name="imprimirReunidas"]').count(), 0);
  // The next Imprimir starts another document.
  await press(page, 'Imprimir');
  assert.equal(await sheets.count(), 1);
});
