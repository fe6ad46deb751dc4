// The browser edition in Debian's chromium: the menus by clicks, the order
// quantity models' examples opened, solved, printed and saved, the system's
// boxes, and the window commands.
import { test, before, after } from 'node:test';
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import {
  openSite, toMainMenu, press, onView, root, menuPaths,
  openModel as openModelAt, messageBox as messageBoxOf, abrir as abrirIn,
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

const tree = () => page.evaluate(() => window.vorel.tree);

// Models, the pictures that lead to their entry screens.
const MODELS = [
  { id: 'cep', screen: 'GI_CantidadEconómicaPedido', path: ['Image6', 'Image3', 'Image3'] },
  { id: 'cep-gradual', screen: 'GI_CEPGradual', path: ['Image6', 'Image3', 'Image9'] },
  { id: 'cep-ruptura', screen: 'GI_CEPRuptura', path: ['Image6', 'Image3', 'Image8'] },
  { id: 'cep-descuento', screen: 'GI_CEPDescuento', path: ['Image6', 'Image3', 'Image7'] },
];
const EOQ = MODELS[0];

const openModel = (model) => openModelAt(site, model.path, model.screen);
const messageBox = () => messageBoxOf(page);
const abrir = (path) => abrirIn(page, path);

test('the start screen shows for two seconds, then the main menu', async () => {
  await page.goto(site.url);
  await onView(page, 'AInicio').waitFor();
  assert.match(await onView(page, 'AInicio').textContent(), /Aula de Gestión ProductivaVersión 1.1 \(2004\)/);
  const shown = Date.now();
  await onView(page, 'APrincipal').waitFor({ timeout: 10000 });
  assert.ok(Date.now() - shown >= 1500, 'the start screen stays about two seconds');
  assert.equal(await page.locator('html').getAttribute('lang'), 'es');
});

test('every section menu is reached by clicks, with its text and its choices', async () => {
  const { menus } = await tree();
  const paths = Object.fromEntries(Object.entries(menuPaths(await tree())).filter(([name]) => menus[name]));
  assert.equal(Object.keys(paths).length, 12);
  await toMainMenu(site);
  for (const [name, path] of Object.entries(paths)) {
    if (name === 'APrincipal') continue;
    for (const picture of path) await press(page, picture);
    const menu = onView(page, name);
    await menu.waitFor();
    assert.equal(await menu.locator('.intro').textContent(), menus[name].intro);
    assert.equal(await menu.locator('.opcion').count(), menus[name].commands.filter((c) => c.target).length);
    await press(page, 'gohome');
    await onView(page, 'APrincipal').waitFor();
  }
});

test('the intervals selector shows the rows it chooses, keeping what they hold', async () => {
  const model = MODELS.find((m) => m.id === 'cep-descuento');
  await openModel(model);
  const row = (letter) => page.locator(`#escritorio input[name="${letter}1"]`);
  assert.deepEqual([await row('B').isVisible(), await row('C').isVisible()], [true, false]);
  await page.selectOption('select[name="cmbIntervalos"]', '4');
  await row('D').fill('5000');
  await page.selectOption('select[name="cmbIntervalos"]', '2');
  assert.deepEqual([await row('C').isVisible(), await row('D').isVisible()], [false, false]);
  await page.selectOption('select[name="cmbIntervalos"]', '4');
  assert.equal(await row('D').inputValue(), '5000');
  assert.equal(await page.locator('#escritorio [name="Intervalo4"]').isVisible(), true);
  // A screen reader reads each cell by its row and its column.
  assert.equal(await page.getByRole('textbox', { name: 'Intervalo 4, Coste' }).getAttribute('name'), 'D3');
  assert.equal(await row('A').getAttribute('aria-label'), 'Intervalo 1, Límite  Inferior');
});

test('guardar gives the bytes of the file the desktop writes', async () => {
  await openModel(EOQ);
  const example = `${root}/examples/cep/limites.txt`;
  await abrir(example);
  const [download] = await Promise.all([page.waitForEvent('download'), press(page, 'guardar')]);
  assert.equal(download.suggestedFilename(), 'Límites superiores');
  assert.deepEqual(readFileSync(await download.path()), readFileSync(example));
});

test('a bad field gets its message box, and the screen keeps everything typed', async () => {
  await openModel(EOQ);
  await page.fill('input[name="D"]', '1000');
  await page.fill('input[name="E"]', 'cincuenta');
  await page.locator('input[name="A"]').focus();
  await press(page, 'Resolver');
  assert.deepEqual(await messageBox(),
    { title: 'Error', text: 'Valor del coste de emisión (E) no válido. Introduce un nuevo valor' });
  await page.keyboard.press('Escape');
  await page.locator('dialog.caja').waitFor({ state: 'detached' });
  // No focus is set by this model's checks: it goes back where it was.
  assert.equal(await page.evaluate(() => document.activeElement.name), 'Resolver');
  assert.equal(await page.inputValue('input[name="E"]'), 'cincuenta');
  await onView(page, EOQ.screen).waitFor();
});

test('a run-time error shows its box, then the app starts again', async () => {
  await openModel(EOQ);
  for (const [name, value] of [['D', '999999999'], ['E', '999999999'], ['A', '1E-300'], ['TS', '1'], ['dias', '1'], ['P', '1']]) {
    await page.fill(`input[name="${name}"]`, value);
  }
  await press(page, 'Resolver');
  assert.deepEqual(await messageBox(), { title: 'Vorel', text: "Error en tiempo de ejecución '6':\n\nDesbordamiento" });
  await page.locator('dialog.caja .aceptar').click();
  await onView(page, 'AInicio').waitFor();
  await onView(page, 'APrincipal').waitFor({ timeout: 10000 });
  for (const picture of EOQ.path) await press(page, picture);
  assert.equal(await page.inputValue('input[name="D"]'), '', 'the entry screen was unloaded');
});

test('the window commands: volver, gohome, minimizar, cerrar, nuevo and ayuda', async () => {
  await openModel(EOQ);
  await abrir(`${root}/examples/cep/libro.txt`);
  const typed = await page.inputValue('input[name="D"]');
  await press(page, 'Resolver');
  await onView(page, `${EOQ.screen}_Solución`).waitFor();
  await press(page, 'volver');
  await onView(page, EOQ.screen).waitFor();
  assert.equal(await page.inputValue('input[name="D"]'), typed);
  // gohome only hides: back through the menus, the fields are as they were.
  await press(page, 'gohome');
  for (const picture of EOQ.path) await press(page, picture);
  assert.equal(await page.inputValue('input[name="D"]'), typed);
  // Minimised, it waits in the bar; nothing else is on view.
  await press(page, 'minimizar');
  await onView(page, EOQ.screen).waitFor({ state: 'detached' });
  await page.locator('#barra button').click();
  await onView(page, EOQ.screen).waitFor();
  // nuevo blanks the numbers, not the title.
  await page.fill('input[name="Titulo1"]', 'Otro');
  await press(page, 'nuevo');
  assert.equal(await page.inputValue('input[name="D"]'), '');
  assert.equal(await page.inputValue('input[name="Titulo1"]'), 'Otro');
  await press(page, 'ayuda');
  assert.match(await page.locator('dialog.ayuda iframe').getAttribute('src'), /GI_CantidadEconomicaPedido\.html$/);
  await page.frameLocator('dialog.ayuda iframe').locator('h1').first().waitFor();
  await page.keyboard.press('Escape');
  await page.locator('dialog.ayuda').waitFor({ state: 'detached' });
  // cerrar unloads: with no window left the app says it is closed, and opened
  // again the screen starts from its presets.
  await press(page, 'cerrar');
  await page.locator('#escritorio .vacio button').click();
  await onView(page, 'APrincipal').waitFor({ timeout: 10000 });
  for (const picture of EOQ.path) await press(page, picture);
  assert.equal(await page.inputValue('input[name="Titulo1"]'), 'Problema1');
});

test('on a phone the menus and the entry screen stay inside the width', async () => {
  await page.setViewportSize({ width: 360, height: 740 });
  try {
    for (const model of [EOQ, MODELS.find((m) => m.id === 'cep-descuento')]) {
      await openModel(model);
      assert.ok(await page.evaluate(() => document.documentElement.scrollWidth <= 360), model.screen);
      const table = page.locator('#escritorio .tabla');
      if (await table.count()) {  // the table scrolls inside its panel, within the screen
        const box = await table.boundingBox();
        assert.ok(box.x >= 0 && box.x + box.width <= 360, 'the table panel stays on the screen');
      }
    }
    await press(page, 'gohome');
    assert.ok(await page.evaluate(() => document.documentElement.scrollWidth <= 360), 'APrincipal');
  } finally {
    await page.setViewportSize({ width: 1280, height: 900 });
  }
});
