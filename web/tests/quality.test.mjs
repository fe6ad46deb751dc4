// The control charts in the browser: the activation and Recalcular take
// samples out of the entry, which shows them gone on the way back; the
// chart's own buttons show as its state says and open the other charts; the
// page keeps the first pass's chart; a file may leave both options unticked,
// and nuevo leaves the focus in the title.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import {
  useSite, press, onView, root, openModel, abrir, messageBox,
} from './browser.mjs';

let site;
let page;
let paths;
useSite((opened) => ({ site, page, paths } = opened));

const entry = 'ControlCal_V';
const control = (screen, name) => onView(page, screen).locator(`[name="${name}"]`);
const shown = (screen, name) => control(screen, name).evaluate((e) => !e.closest('[hidden]'));
const report = (screen) => onView(page, screen).locator('.informe[data-text]');
// A chart's picture, whatever number its drawing took.
const picture = async (locator) => (await locator.innerHTML()).replace(/grafico-\d+-/g, '');
const chartOn = (screen) => picture(onView(page, screen).locator('figure.grafico svg'));

test('Recalcular takes samples out until the process is in control, and the entry shows them gone', async () => {
  await openModel(site, paths[entry], entry);
  await abrir(page, `${root}/examples/control-variables/recalculo-saca-nuevos.txt`);
  await press(page, 'Resolver');
  await report('ControlCal_V_Sol').waitFor();
  assert.equal(await control('ControlCal_V_Sol', 'Label2').textContent(), 'Gráfico de Medias');
  assert.equal(await shown('ControlCal_V_Sol', 'Recalcular'), true);
  assert.equal(await shown('ControlCal_V_Sol', 'ControlDesviaciones'), true);
  assert.equal(await shown('ControlCal_V_Sol', 'ControlRecorridos'), false);
  const first = await chartOn('ControlCal_V_Sol');

  await press(page, 'Recalcular');
  assert.match(await report('ControlCal_V_Sol').getAttribute('data-text'), /El punto 4 está fuera/);
  assert.equal(await shown('ControlCal_V_Sol', 'ControlDesviaciones'), false);
  assert.notEqual(await chartOn('ControlCal_V_Sol'), first);
  // The page keeps the first pass's chart, which comes back on view.
  await page.evaluate(() => { window.print = () => { window.printed = true; }; });
  await press(page, 'Imprimir');
  assert.equal(await picture(page.locator('#impresion .impreso').last().locator('svg')), first);
  assert.equal(await chartOn('ControlCal_V_Sol'), first);

  await press(page, 'Recalcular');
  assert.match(await report('ControlCal_V_Sol').getAttribute('data-text'), /La media del proceso está bajo control/);
  assert.equal(await shown('ControlCal_V_Sol', 'Recalcular'), false);
  // The deviations chart opens in its place, on the shortened entry; volver
  // leads back to the means chart, and from there to the entry.
  await press(page, 'ControlDesviaciones');
  await report('ControlCal_V_Sol2').waitFor();
  assert.equal(await control('ControlCal_V_Sol2', 'Label2').textContent(), 'Gráfico de Desviaciones Típicas');
  assert.match(await report('ControlCal_V_Sol2').getAttribute('data-text'), /Smedia:\s+1\n/);
  await press(page, 'volver');
  await report('ControlCal_V_Sol').waitFor();
  await press(page, 'volver');
  await onView(page, entry).waitFor();
  assert.equal(await control(entry, 'Nmuestras').inputValue(), '8');
  assert.equal(await control(entry, 'M(6)').inputValue(), '20');
});

test('the deviations chart calls on a printer dialog never set', async () => {
  await openModel(site, paths[entry], entry);
  await abrir(page, `${root}/examples/control-variables/medias-bajo-control.txt`);
  await press(page, 'Resolver');
  await report('ControlCal_V_Sol').waitFor();
  await press(page, 'ControlDesviaciones');
  await report('ControlCal_V_Sol2').waitFor();
  await press(page, 'Imprimir');
  assert.equal((await messageBox(page)).text, "Error en tiempo de ejecución '91':\n\nVariable de tipo Object o la variable de bloque With no está establecida");
  await page.keyboard.press('Enter');
  await onView(page, 'AInicio').waitFor();
});

test('options of no family: a file may leave both unticked, and a click runs the model', async () => {
  const screen = 'ControlCal_AtribP';
  await openModel(site, paths[screen], screen);
  await page.evaluate((s) => {
    window.vorel.core.setChecked(s, 'Option1', false);
    window.vorel.show(s);
  }, screen);
  assert.equal(await control(screen, 'Option1').isChecked(), false);
  assert.equal(await control(screen, 'Option2').isChecked(), false);
  await control(screen, 'Option2').check();
  assert.equal(await control(screen, 'tamano(0)').isHidden(), true);
  assert.equal(await control(screen, 'Labelr').isHidden(), false);
  assert.equal(await control(screen, 'Option1').isChecked(), false);
  // nuevo ticks Option1 again and leaves the focus in the title.
  await press(page, 'nuevo');
  assert.equal(await control(screen, 'Option1').isChecked(), true);
  assert.equal(await page.evaluate(() => document.activeElement.name), 'Titulo1');
});
