// Pictures of every browser screen built so far, at a desktop's width and a
// phone's: node web/tests/screenshots.mjs FOLDER. Each model's entry screen
// shows an example (its "libro" where it has one), then its solution. The
// printed page of one model of each subsystem goes to FOLDER/<id>-imprimir.pdf.
// VOREL_MODELS=id,id... shoots only those models (and no menus).
import { mkdirSync, readdirSync, readFileSync } from 'node:fs';
import { openSite, press, onView, root, menuPaths, openModel } from './browser.mjs';

const folder = process.argv[2] ?? `${root}/screenshots/web`;
mkdirSync(folder, { recursive: true });

const only = process.env.VOREL_MODELS?.split(',');
// The first model of each subsystem (by the folder of its entry screen's
// section) prints its page to PDF.
const printed = new Set();

// Its "libro", or else the first example that reaches a solution (not a
// message or a run-time error).
function exampleOf(id) {
  const names = readdirSync(`${root}/examples/${id}`).filter((f) => f.endsWith('.txt')).sort()
    .map((f) => f.replace(/\.txt$/, ''));
  const solves = (name) => !readFileSync(`${root}/tests/golden/${id}/${name}.report`, 'utf8').startsWith('[salida');
  return names.find((n) => n === 'libro') ?? names.find(solves) ?? names[0];
}

for (const width of [1280, 390]) {
  const site = await openSite({ width, height: width > 600 ? 900 : 844 });
  const { page } = site;
  const shoot = (name) => page.screenshot({ path: `${folder}/${name}-${width}.png`, fullPage: true });
  await page.goto(site.url);
  await onView(page, 'AInicio').waitFor();
  if (!only) await shoot('AInicio');
  await onView(page, 'APrincipal').waitFor({ timeout: 10000 });
  const tree = await page.evaluate(() => window.vorel.tree);
  if (!only) {
    await shoot('APrincipal');
    for (const name of Object.keys(tree.menus)) {
      if (name === 'APrincipal') continue;
      await page.evaluate((n) => { window.vorel.show(n); }, name);
      await onView(page, name).waitFor();
      await shoot(name);
    }
  }
  const paths = menuPaths(tree);
  const models = tree.screens.filter((s) => s.kind === 'entry' && s.model
    && (!only || only.includes(s.model)));
  for (const model of models) {
    await openModel(site, paths[model.name], model.name);
    const [chooser] = await Promise.all([page.waitForEvent('filechooser'), press(page, 'abrir')]);
    await chooser.setFiles(`${root}/examples/${model.model}/${exampleOf(model.model)}.txt`);
    await page.evaluate(() => window.vorel.reading);
    await shoot(model.name);
    const presses = model.presses.split(', ').filter(Boolean);
    for (const name of presses) await press(page, name);
    if (presses.length > 0) await shoot(`${model.name}_${presses.join('_')}`);  // what they show
    await press(page, 'Resolver');
    await page.locator('#escritorio .solution .informe[data-text]').waitFor();
    await shoot(`${model.name}_Solucion`);
    const subsystem = paths[model.name][1];
    if (width > 600 && !printed.has(subsystem)) {
      printed.add(subsystem);
      await page.evaluate(() => { window.print = () => {}; });
      await press(page, 'Imprimir');
      await page.emulateMedia({ media: 'print' });
      await page.pdf({ path: `${folder}/${model.model}-imprimir.pdf`, format: 'A4' });
      await page.emulateMedia({ media: 'screen' });
      await page.evaluate(() => window.vorel.printGathered());  // the next page starts afresh
    }
  }
  if (only) {
    await site.close();
    continue;
  }
  // The system's boxes: a check message and the help view.
  await openModel(site, paths['GI_CantidadEconómicaPedido'], 'GI_CantidadEconómicaPedido');
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
