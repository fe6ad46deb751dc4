// Pictures of every browser screen built so far, at a desktop's width and a
// phone's: node web/tests/screenshots.mjs FOLDER. The printed page of the
// economic order quantity also goes to FOLDER/cep-imprimir.pdf.
import { mkdirSync } from 'node:fs';
import { openSite, toMainMenu, press, onView, root } from './browser.mjs';

const folder = process.argv[2] ?? `${root}/screenshots/web`;
mkdirSync(folder, { recursive: true });

const MODELS = [
  { id: 'cep', screen: 'GI_CantidadEconómicaPedido', path: ['Image6', 'Image3', 'Image3'], example: 'libro' },
  { id: 'cep-gradual', screen: 'GI_CEPGradual', path: ['Image6', 'Image3', 'Image9'], example: 'fase-creciente' },
  { id: 'cep-ruptura', screen: 'GI_CEPRuptura', path: ['Image6', 'Image3', 'Image8'], example: 'libro' },
  { id: 'cep-descuento', screen: 'GI_CEPDescuento', path: ['Image6', 'Image3', 'Image7'], example: 'libro' },
];

for (const width of [1280, 390]) {
  const site = await openSite({ width, height: width > 600 ? 900 : 844 });
  const { page } = site;
  const shoot = (name) => page.screenshot({ path: `${folder}/${name}-${width}.png`, fullPage: true });
  await page.goto(site.url);
  await onView(page, 'AInicio').waitFor();
  await shoot('AInicio');
  await onView(page, 'APrincipal').waitFor({ timeout: 10000 });
  await shoot('APrincipal');
  const { menus } = await page.evaluate(() => window.vorel.tree);
  for (const [name, menu] of Object.entries(menus)) {
    if (name === 'APrincipal') continue;
    await page.evaluate((n) => { window.vorel.show(n); }, name);
    await onView(page, name).waitFor();
    await shoot(name);
    void menu;
  }
  for (const model of MODELS) {
    await toMainMenu(site);
    for (const picture of model.path) await press(page, picture);
    await onView(page, model.screen).waitFor();
    const [chooser] = await Promise.all([page.waitForEvent('filechooser'), press(page, 'abrir')]);
    await chooser.setFiles(`${root}/examples/${model.id}/${model.example}.txt`);
    await page.evaluate(() => window.vorel.reading);
    await shoot(model.screen);
    await press(page, 'Resolver');
    await page.locator('#escritorio .informe .linea').first().waitFor();
    await shoot(`${model.screen}_Solucion`);
    if (model.id === 'cep' && width > 600) {
      await page.evaluate(() => { window.print = () => {}; });
      await press(page, 'Imprimir');
      await page.emulateMedia({ media: 'print' });
      await page.pdf({ path: `${folder}/cep-imprimir.pdf`, format: 'A4' });
      await page.emulateMedia({ media: 'screen' });
    }
  }
  // The system's boxes: a check message and the help view.
  await press(page, 'volver');
  await page.fill('input[name="D"]', 'mil');
  await press(page, 'Resolver');
  await page.locator('dialog.caja[open]').waitFor();
  await shoot('mensaje');
  await page.keyboard.press('Escape');
  await press(page, 'ayuda');
  await page.frameLocator('dialog.ayuda iframe').locator('h1').first().waitFor();
  await shoot('ayuda');
  await site.close();
}
console.log(`Capturas del navegador en ${folder}`);
