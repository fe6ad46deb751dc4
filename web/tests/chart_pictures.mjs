// Pictures of example charts as the browser draws them, one PNG per chart,
// for setting beside the desktop's: node web/tests/chart_pictures.mjs [FOLDER]
// (default screenshots/web) writes FOLDER/charts-<model>-<example>.png at
// twice the picture's size, and FOLDER/charts.png with all of them.
import { mkdirSync } from 'node:fs';
import { openSite } from './browser.mjs';
import { exampleChart, root } from './example_charts.mjs';

export const PICTURED = [
  ['curvas-experiencia', 'ochenta'],
  ['costes-totales', 'tres-opciones'],
  ['control-variables', 'cuarenta-y-cinco'],
  ['control-variables', 'medias-bajo-control', 'desviaciones'],
  ['control-atributos', 'p-variable'],
  ['control-defectos', 'c-fuera'],
];

const folder = process.argv[2] ?? `${root}/screenshots/web`;
mkdirSync(folder, { recursive: true });
const charts = [];
for (const [id, example, grafico] of PICTURED) {
  const chart = await exampleChart(id, example, grafico);
  if (!chart) throw new Error(`${id} ${example}: no chart`);
  charts.push({ name: [id, example, grafico].filter(Boolean).join('-'), chart });
}

// The site's own scripts and styles, straight from the sources.
const site = await openSite({ width: 2000, height: 800, folder: `${root}/web/site` });
const { page } = site;
await page.goto(`${site.url}vorel.css`);
await page.setContent('<!doctype html><html lang="es"><head><link rel="stylesheet" href="/vorel.css"></head>'
  + '<body style="background:white;margin:8px"></body></html>');
await page.evaluate(async (all) => {
  const { chartSvg } = await import('/js/chart.mjs');
  for (const { name, chart } of all) {
    const figure = document.createElement('figure');
    figure.id = name;
    figure.style.cssText = 'display:inline-block;margin:4px;border:1px solid #eee';
    const svg = chartSvg(chart);
    svg.style.width = '960px';  // twice over, as a vector
    svg.style.height = '660px';
    figure.append(svg);
    document.body.append(figure);
  }
}, charts);
for (const { name } of charts) {
  await page.locator(`#${name} svg`).screenshot({ path: `${folder}/charts-${name}.png` });
}
await page.screenshot({ path: `${folder}/charts.png`, fullPage: true });
if (site.errors.length) throw site.errors[0];
await site.close();
console.log(`Gráficos del navegador en ${folder}`);
