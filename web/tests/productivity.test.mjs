// The productivity screens in the browser: global productivity's lists grow
// with Añadir, a click on a row brings its group to it, the focus on a list
// puts its group in hand, and Resolver writes the results into the entry's
// boxes; the experience curve's Check1 offers the economic fields.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { useSite, press, onView, openModel, messageBox } from './browser.mjs';

let site;
let page;
let paths;
useSite((opened) => ({ site, page, paths } = opened));

const GLOBAL = 'Productividad_Global';
const control = (name) => page.locator(`#escritorio [name="${name}"]`);
const rows = (list) => control(`${list}_filas`).locator('option').allTextContents();

async function fila(values) {
  const names = ['CmbUFI0', 'CmbPUI0', 'CmbUFI1', 'CmbUFO0', 'CmbPUO0', 'CmbUFO1'];
  for (const [k, name] of names.entries()) await control(name).fill(values[k]);
  await press(page, 'AÑADIR');
}

test('global productivity: rows, a click, the group in hand and the results on the entry', async () => {
  await openModel(site, paths[GLOBAL], GLOBAL);
  await fila(['1000', '12', '1100', '200', '90', '230']);
  await fila(['500', '4', '', '100', '50', '95']);
  assert.match((await messageBox(page)).text, /año 1 no existe/);
  await page.keyboard.press('Enter');
  assert.equal(await page.evaluate(() => document.activeElement.name), 'CmbUFI1');
  await control('CmbUFI1').fill('450');
  await press(page, 'AÑADIR');
  assert.deepEqual(await rows('CmbPUI0'), ['12', '4']);
  assert.equal(await control('TxtFT').inputValue(), '2');
  assert.equal(await control('TxtFT').getAttribute('readonly'), '');

  await control('CmbPUO0_filas').selectOption({ index: 1 });
  assert.equal(await control('CmbUFO0').inputValue(), '100');
  assert.equal(await control('TxtProd').inputValue(), '2');

  await control('CmbUFI0_filas').selectOption({ index: 0 });
  await control('CmbUFO0_filas').selectOption({ index: 1 });
  await control('CmbUFI1').focus();
  await press(page, 'eliminar');  // the inputs' row in hand goes
  assert.deepEqual(await rows('CmbUFI1'), ['450']);
  assert.deepEqual(await rows('CmbUFO1'), ['230', '95']);

  await press(page, 'Resolver');
  await onView(page, `${GLOBAL}_Solucion`).waitFor();
  await press(page, 'volver');
  await onView(page, GLOBAL).waitFor();
  assert.equal(await control('PO').inputValue(), '11.5');
});

test('experience curves: Check1 offers the margin and the labour cost', async () => {
  await openModel(site, paths.C_Experiencia, 'C_Experiencia');
  const offered = async () => (await control('MgB').isEnabled()) && (await control('CMdeO').isEnabled());
  assert.equal(await offered(), false);
  await control('Check1').check();
  assert.equal(await offered(), true);
  await control('Check1').uncheck();
  assert.equal(await offered(), false);
});
