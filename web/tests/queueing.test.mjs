// The queueing entry screen in headless chromium: the option buttons and
// Servicios enable, relabel and fill the fields as on the desktop; each
// arrival on the screen puts back the first enabling but keeps the texts;
// Resolver writes the model it chose into the hidden fields.
import { test, before, after } from 'node:test';
import assert from 'node:assert/strict';
import { openSite, press, onView, menuPaths, messageBox } from './browser.mjs';

const ENTRY = 'TeoriaColas';
const SOLUTION = 'TeoriaColas_Solucion';

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

// Through the menus to the entry screen, a fresh one each time.
async function openColas() {
  await page.goto(site.url);
  await onView(page, 'AInicio').waitFor();
  await onView(page, 'APrincipal').waitFor({ timeout: 10000 });
  const tree = await page.evaluate(() => window.vorel.tree);
  const paths = menuPaths(tree);
  const [menu, choice] = Object.entries(tree.menus).flatMap(([name, m]) =>
    m.commands.filter((c) => c.target === ENTRY).map((c) => [name, c]))[0];
  for (const picture of [...paths[menu], choice.name]) await press(page, picture);
  await onView(page, ENTRY).waitFor();
}

const control = (name) => page.locator(`#escritorio [data-screen="${ENTRY}"] [name="${name}"]`);
const chosen = async () => {
  let out = '';
  for (const name of ['ColaIlimitada', 'ColaLimitada', 'FuenteFinita']) out += (await control(name).isChecked()) ? '1' : '0';
  return out;
};
// K, its caption, N, its caption and Servicios as "KkNnS", a dot for each disabled one.
const enabling = async () => {
  let out = '';
  for (const [name, mark] of [['K', 'K'], ['TamañoCola', 'k'], ['N', 'N'], ['Label8', 'n'], ['Servicios', 'S']]) {
    const c = control(name);
    const on = (await c.evaluate((e) => e.tagName)) === 'LABEL'
      ? !(await c.evaluate((e) => e.classList.contains('apagado')))
      : await c.isEnabled();
    out += on ? mark : '.';
  }
  return out;
};

test('the first arrival chooses the unlimited queue and shows the arrivals list open', async () => {
  await openColas();
  assert.equal(await chosen(), '100');
  assert.equal(await enabling(), '....S');
  assert.equal(await control('LblNu').textContent(), 'Tasa de Servicios');
  assert.equal(await control('VarTS').isEnabled(), false);
  const llegadas = control('LLegadas');
  assert.deepEqual(await llegadas.locator('option').allTextContents(), ['M']);
  assert.ok((await llegadas.evaluate((e) => e.size)) > 1, 'a list shown open, not a drop-down');
  assert.deepEqual(await control('Servicios').locator('option').allTextContents(), ['M', 'G', 'D']);
  for (const hidden of ['Tipo', 'Estado', 'Ro']) assert.equal(await control(hidden).isVisible(), false);
});

test('each option enables the sizes it asks for and puts Servicios back to "M"', async () => {
  await openColas();
  await page.selectOption(`[name="Servicios"]`, 'G');
  assert.equal(await control('LblNu').textContent(), 'Valor esperado');
  for (const [option, expected, enabled] of [
    ['ColaLimitada', '010', 'Kk...'], ['FuenteFinita', '001', '..Nn.'], ['ColaIlimitada', '100', '....S'],
  ]) {
    await control(option).click();
    assert.equal(await chosen(), expected, option);
    assert.equal(await enabling(), enabled, option);
    assert.equal(await control('Servicios').inputValue(), 'M');
    assert.equal(await control('LblNu').textContent(), 'Tasa de Servicios');
  }
  assert.equal(await control('Estado').inputValue(), '0');
});

test('Servicios relabels the service rate, fixes one server and sets its tool-tip', async () => {
  await openColas();
  await control('S').fill('3');
  for (const [item, label, varianza, toolTip] of [
    ['G', 'Valor esperado', true, 'Número medio de clientes atendidos por hora'],
    ['D', 'Tiempo de Servicio', false, 'Número de clientes atendidos por hora'],
  ]) {
    await page.selectOption(`[name="Servicios"]`, item);
    assert.equal(await control('LblNu').textContent(), label);
    assert.equal(await control('VarTS').isEnabled(), varianza);
    assert.equal(await control('LblVar').evaluate((e) => e.classList.contains('apagado')), !varianza);
    assert.equal(await control('S').inputValue(), '1');
    assert.equal(await control('S').isEnabled(), false);
    assert.equal(await control('Nu').getAttribute('title'), toolTip);
  }
});

test('coming back from the solution resets the enabling but keeps the texts and the model chosen', async () => {
  await openColas();
  await page.selectOption(`[name="Servicios"]`, 'G');
  await control('Lambda').fill('1');
  await control('Nu').fill('2');
  await control('VarTS').fill('0.5');
  await press(page, 'Resolver');
  const solution = onView(page, SOLUTION);
  await solution.waitFor();
  await solution.locator('.informe .linea', { hasText: 'Modelo M/G/1' }).waitFor();
  await press(page, 'back2');
  await onView(page, ENTRY).waitFor();
  assert.equal(await control('Servicios').inputValue(), 'M');
  assert.equal(await control('LblNu').textContent(), 'Tasa de Servicios');
  assert.equal(await control('VarTS').isEnabled(), false);
  assert.equal(await control('VarTS').inputValue(), '0.5');
  assert.equal(await control('S').isEnabled(), true);
  assert.equal(await control('S').inputValue(), '1');
  assert.equal(await control('Tipo').inputValue(), '3');
});

test('the unstable system is refused by its check', async () => {
  await openColas();
  await control('S').fill('2');
  await control('Lambda').fill('5');
  await control('Nu').fill('2');
  await press(page, 'Resolver');
  assert.deepEqual(await messageBox(page), { title: 'Error', text: 'El sistema no se encuentra en fase estable' });
  await page.keyboard.press('Escape');
  await onView(page, ENTRY).waitFor();
});
