// Charts drawn in the browser from the core's chart data: every example chart
// with a line and a marker per point of each series, the legend and the title;
// the axes labelled with the numbers the desktop prints; the rows labelled
// every k-th when they are many; and, in chromium, labels that neither
// overlap nor leave the picture.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { after, before, describe, test } from 'node:test';
import { chartSvg, formatG } from '../site/js/chart.mjs';
import { openSite } from './browser.mjs';
import { everyExampleChart, exampleChart, root } from './example_charts.mjs';

// Just enough of a document to build the picture in node and look into it.
class Node {
  constructor(namespace, name) {
    Object.assign(this, { namespace, name, attributes: new Map(), children: [], text: '' });
  }
  setAttribute(key, value) { this.attributes.set(key, String(value)); }
  attr(key) { return this.attributes.get(key); }
  appendChild(child) { this.children.push(child); return child; }
  set textContent(text) { this.text = text; this.children = []; }
  get textContent() { return this.text + this.children.map((c) => c.textContent).join(''); }
  all(test) {
    return this.children.flatMap((c) => [...(test(c) ? [c] : []), ...c.all(test)]);
  }
  byClass(name) { return this.all((n) => (n.attr('class') ?? '').split(' ').includes(name)); }
}
const fakeDocument = { createElementNS: (namespace, name) => new Node(namespace, name) };
const draw = (chart, options = {}) => chartSvg(chart, { document: fakeDocument, ...options });

// The desktop's series colours, in order (its chart theme).
const DESKTOP_COLOURS = ['#209fdf', '#99ca53', '#f6a625', '#6d5fd5', '#bf593e'];

const valueLabels = (svg) => svg.byClass('valores')[0].byClass('etiqueta').map((t) => t.textContent);
const categoryLabels = (svg) => svg.byClass('categorias')[0].byClass('etiqueta').map((t) => t.textContent);
const seriesGroups = (svg) => svg.byClass('serie');
const pathPoints = (group) => (group.all((n) => n.name === 'path')[0].attr('d').match(/[ML]/g) ?? []).length;
const markers = (group) => group.all((n) => n.name === 'circle');

// A lines chart of `rows` points and the given series (values row by row).
function lines(rows, columns = 1, axis = { automatic: true, minimum: 0, maximum: 0, majorDivision: 0 }) {
  return {
    kind: 'lines', title: '', categoryTitle: '', valueTitle: '',
    series: Array.from({ length: columns }, (_, c) => `S${c + 1}`),
    rows: Array.from({ length: rows }, (_, r) => String(r + 1)),
    matrix: Array.from({ length: rows }, (_, r) => Array.from({ length: columns }, (__, c) => 10 + r + c)),
    axis, pageLeft: 0, pageTop: 0,
  };
}

describe('every example chart', () => {
  let charts = [];
  before(async () => { charts = await everyExampleChart(); });

  test('the examples give charts of both kinds and both axes', () => {
    assert.ok(charts.length >= 20, `${charts.length} charts`);
    assert.ok(charts.some((c) => c.chart.kind === 'xy'));
    assert.ok(charts.some((c) => !c.chart.axis.automatic));
    assert.ok(charts.some((c) => c.grafico));
  });

  // The JSON the browser receives holds what the native program's chart text
  // (its golden .chart) holds: the texts whole, the numbers to the digits printed.
  test('each chart holds what its golden chart text holds', () => {
    const near = (a, b) => Math.abs(a - b) <= 1e-6 * Math.max(1, Math.abs(b));
    const numbers = (text) => text.match(/-?[\d.]+(?:E[-+]\d+)?/g).map(Number);
    const compared = charts.filter((c) => !c.grafico).map(({ id, example, chart }) => {
      const where = `${id} ${example}`;
      const lines = readFileSync(`${root}/tests/golden/${id}/${example}.chart`, 'utf8').split('\n');
      assert.equal(lines[0], `Gráfico:${chart.title ? ` ${chart.title}` : ''}`, where);
      assert.equal(lines[1], chart.kind === 'xy' ? 'Tipo: XY' : 'Tipo: líneas', where);
      assert.equal(lines[2], `Eje de categorías: ${chart.categoryTitle}`, where);
      const axis = lines[3].slice(`Eje de valores: ${chart.valueTitle} `.length);
      assert.ok(lines[3].startsWith(`Eje de valores: ${chart.valueTitle} (`), where);
      assert.equal(axis === '(automático)', chart.axis.automatic, where);
      const { minimum, maximum, majorDivision } = chart.axis;
      if (!chart.axis.automatic) assert.ok(numbers(axis).every((n, k) => near([minimum, maximum, majorDivision][k], n)), where);
      assert.ok(numbers(lines[4]).every((n, k) => near([chart.pageLeft, chart.pageTop][k], n)), where);
      const head = lines[5].split('\t').slice(1);
      const names = chart.kind === 'xy' ? chart.series.flatMap((n) => [`${n} (x)`, `${n} (y)`]) : chart.series;
      assert.deepEqual(head, names, where);
      const rows = lines.slice(6, -1).map((line) => line.split('\t'));
      assert.equal(rows.length, chart.matrix.length, where);
      rows.forEach(([label, ...cells], r) => {
        assert.equal(label, chart.rows[r] ?? String(r + 1), where);
        assert.equal(cells.length, chart.matrix[r].length, where);
        cells.forEach((cell, k) => assert.ok(near(chart.matrix[r][k], Number(cell)), `${where} ${r} ${k}`));
      });
      return where;
    });
    assert.ok(compared.length >= 15, `${compared.length} charts compared`);
  });

  test('a line and a marker per point of each series, in the desktop colours; the legend; the title', () => {
    for (const { id, example, grafico, chart } of charts) {
      const where = `${id} ${example} ${grafico ?? ''}`;
      const svg = draw(chart);
      assert.equal(svg.name, 'svg');
      assert.equal(svg.attr('role'), 'img');
      const columns = Math.max(...chart.matrix.map((row) => row.length));
      const count = chart.kind === 'xy' ? columns / 2 : columns;
      assert.equal(chart.series.length, count, where);
      const groups = seriesGroups(svg);
      assert.deepEqual(groups.map((g) => g.attr('data-series')), chart.series, where);
      groups.forEach((g, k) => {
        assert.equal(pathPoints(g), chart.matrix.length, where);
        assert.equal(markers(g).length, chart.matrix.length, where);
        assert.equal(g.all((n) => n.name === 'path')[0].attr('stroke'), DESKTOP_COLOURS[k], where);
      });
      const legend = svg.byClass('entrada');
      assert.deepEqual(legend.map((e) => e.textContent), chart.series, where);
      assert.deepEqual(legend.map((e) => e.children[0].attr('fill')), DESKTOP_COLOURS.slice(0, count), where);
      const heading = svg.children.find((n) => n.name === 'title').textContent;
      for (const name of chart.series) assert.ok(svg.attr('aria-label').includes(name), where);
      if (chart.title) {
        assert.ok(heading.includes(chart.title) && svg.attr('aria-label').includes(chart.title), where);
        assert.equal(svg.byClass('titulo')[0].textContent, chart.title, where);
      } else {
        assert.equal(svg.byClass('titulo').length, 0, where);
      }
      assert.equal(svg.byClass('titulo-eje').length, Number(Boolean(chart.valueTitle))
        + Number(Boolean(chart.categoryTitle)), where);
    }
  });

  test('every point lies on the plot, between the value axis labels at its ends', () => {
    for (const { id, example, grafico, chart } of charts) {
      const where = `${id} ${example} ${grafico ?? ''}`;
      const svg = draw(chart);
      const plot = svg.all((n) => n.name === 'clipPath')[0].children[0];
      const [left, top] = [Number(plot.attr('x')), Number(plot.attr('y'))];
      const [right, bottom] = [left + Number(plot.attr('width')), top + Number(plot.attr('height'))];
      const ticks = svg.byClass('valores')[0].byClass('etiqueta').map((t) => Number(t.attr('y')));
      assert.ok(Math.abs(Math.max(...ticks) - bottom) < 0.02 && Math.abs(Math.min(...ticks) - top) < 0.02, where);
      for (const g of seriesGroups(svg)) {
        for (const c of markers(g)) {
          const [x, y] = [Number(c.attr('cx')), Number(c.attr('cy'))];
          assert.ok(x >= left - 0.01 && x <= right + 0.01 && y >= top - 0.01 && y <= bottom + 0.01,
                    `${where}: (${x}, ${y}) off [${left}, ${right}] × [${top}, ${bottom}]`);
        }
      }
    }
  });
});

// The axes' labels of the examples' charts as the desktop prints them (read
// off its PDF pages). The desktop cuts "10" to "15" of the 15-point curve to
// an ellipsis; here they stand whole.
const DESKTOP_LABELS = [
  ['costes-totales', 'corte-negativo', '-2000 0 2000 4000 6000 8000', '-1000 0 1000 2000'],
  ['costes-totales', 'dos-opciones', '1000 2000 3000 4000 5000 6000', '0 200 400 600 800 1000'],
  ['costes-totales', 'tres-opciones', '0 2000 4000 6000 8000 10000', '0 200 400 600 800 1000'],
  ['curvas-experiencia', 'ochenta', '50 60 70 80 90 100', '1 2 3 4 5 6 7 8'],
  ['curvas-experiencia', 'pedido', '35 40 45 50', '1 2 3 4 5 6 7 8 9 10'],
  ['curvas-experiencia', 'sin-aprendizaje', '11 11.5 12 12.5 13', '1 2 3 4 5 6 7 8 9 10 11 12 13 14 15'],
  ['control-variables', 'cuarenta-y-cinco', '88.4809 92.9721 97.4633 101.954 106.446 110.937',
    '1 5 10 15 20 25 30 35 40 45'],
  ['control-variables', 'fuera-ambos-lados', '39.8458 43.9075 47.9692 52.0308 56.0925 60.1542',
    '1 2 3 4 5 6 7 8 9 10'],
  ['control-variables', 'lic-negativo', '0 2 4 6 8 10', '1 2 3 4 5 6 7 8'],
  ['control-variables', 'recalculo-saca-nuevos', '14.8258 18.2156 21.6055 24.9953 28.3852 31.775',
    '1 2 3 4 5 6 7 8 9 10'],
  ['control-atributos', 'np-sin-defectuosos', '-1 -0.5 0 0.5 1', '1 2 3 4 5 6'],
  ['control-atributos', 'p-fuera', '0 0.1 0.2 0.3 0.4', '1 2 3 4 5 6 7 8'],
  ['control-atributos', 'p-variable', '0 0.05 0.1 0.15', '1 2 3 4 5 6 7 8'],
  ['control-defectos', 'c-fuera', '0 5 10 15 20', '1 2 3 4 5 6 7 8 9 10'],
  ['control-defectos', 'u-fuera', '0 2 4 6', '1 2 3 4 5 6 7 8'],
];

describe('the axes label what the desktop labels', () => {
  for (const [id, example, values, categories] of DESKTOP_LABELS) {
    test(`${id} ${example}`, async () => {
      const svg = draw(await exampleChart(id, example));
      assert.deepEqual(valueLabels(svg), values.split(' '));
      assert.deepEqual(categoryLabels(svg), categories.split(' '));
    });
  }

  test('a fixed axis is parted into its major divisions, at most twenty', () => {
    const fixed = (majorDivision) => valueLabels(draw(lines(3, 1,
      { automatic: false, minimum: 0, maximum: 100, majorDivision })));
    assert.deepEqual(fixed(5), ['0', '20', '40', '60', '80', '100']);
    assert.deepEqual(fixed(4), ['0', '25', '50', '75', '100']);
    assert.equal(fixed(50).length, 21);
    assert.deepEqual(fixed(0), ['0', '25', '50', '75', '100']);  // none given: four
    // The bounds stand whatever the data: a point above the top is cut off.
    const svg = draw({ ...lines(3, 1, { automatic: false, minimum: 0, maximum: 100, majorDivision: 5 }),
                       matrix: [[50], [150], [-20]] });
    assert.deepEqual(valueLabels(svg), ['0', '20', '40', '60', '80', '100']);
  });

  test('an automatic axis spans every series in round numbers', () => {
    const chart = lines(2, 2);
    chart.matrix = [[0.013, 0.02], [0.0171, 0.0342]];
    assert.deepEqual(valueLabels(draw(chart)), ['0.01', '0.02', '0.03', '0.04']);
    chart.matrix = [[123456], [1234567]];
    chart.series = ['S1'];
    assert.deepEqual(valueLabels(draw(chart)), ['0', '500000', '1e+06', '1.5e+06']);
    chart.matrix = [[7], [7]];  // one value: a unit either side
    assert.deepEqual(valueLabels(draw(chart)), ['6', '6.5', '7', '7.5', '8']);
  });
});

describe('row labels', () => {
  test('up to fifteen rows: every row, under its point', () => {
    const svg = draw(lines(15));
    assert.deepEqual(categoryLabels(svg), Array.from({ length: 15 }, (_, r) => String(r + 1)));
    const xs = (g) => g.map((n) => Number(n.attr('x') ?? n.attr('cx')));
    assert.deepEqual(xs(svg.byClass('categorias')[0].byClass('etiqueta')), xs(markers(seriesGroups(svg)[0])));
  });

  test('more: the first and every k-th, k the least of 2, 5, 10, 20, ... leaving at most fifteen', () => {
    const labels = (rows) => categoryLabels(draw(lines(rows))).join(' ');
    assert.equal(labels(16), '1 2 4 6 8 10 12 14 16');
    assert.equal(labels(45), '1 5 10 15 20 25 30 35 40 45');
    assert.equal(labels(70), '1 5 10 15 20 25 30 35 40 45 50 55 60 65 70');
    assert.equal(labels(75), '1 10 20 30 40 50 60 70');
    assert.equal(labels(150), '1 20 40 60 80 100 120 140');
  });

  test('a row with no label of its own is numbered', () => {
    const chart = lines(3);
    chart.rows = ['enero'];
    assert.deepEqual(categoryLabels(draw(chart)), ['enero', '2', '3']);
  });
});

describe('the data as the desktop reads it', () => {
  test('a missing cell is 0; a series with no name is numbered', () => {
    const chart = lines(2, 2);
    chart.series = ['A'];
    chart.matrix = [[5, 6], [7]];
    const svg = draw(chart);
    assert.deepEqual(seriesGroups(svg).map((g) => g.attr('data-series')), ['A', 'Serie 2']);
    assert.equal(valueLabels(svg)[0], '0');
    assert.equal(markers(seriesGroups(svg)[1]).length, 2);
  });

  test('a number JSON cannot hold (null) breaks the line and is no point', () => {
    const chart = lines(4);
    chart.matrix = [[1], [null], [3], [4]];
    const [group] = seriesGroups(draw(chart));
    assert.equal(markers(group).length, 3);
    assert.equal(group.attr('data-points'), '3');
    assert.match(group.all((n) => n.name === 'path')[0].attr('d'), /^M[^ML]+M[^ML]+L[^ML]+$/);
  });

  test('XY: the columns in pairs, x then y', () => {
    const chart = { ...lines(2, 4), kind: 'xy', series: ['a', 'b'], matrix: [[0, 10, 5, 1], [100, 30, 25, 2]] };
    const svg = draw(chart);
    assert.equal(seriesGroups(svg).length, 2);
    assert.deepEqual(categoryLabels(svg), ['0', '20', '40', '60', '80', '100']);
    assert.deepEqual(valueLabels(svg), ['0', '10', '20', '30']);
  });
});

test('numbers are labelled as printf\'s %.6g writes them', () => {
  const cases = [[0, '0'], [100, '100'], [123456, '123456'], [1234567, '1.23457e+06'], [0.0001, '0.0001'],
    [0.00001, '1e-05'], [-2.5e-7, '-2.5e-07'], [110.936851501465, '110.937'], [0.1 + 0.2, '0.3'],
    [999999.5, '1e+06'], [-1234.5678, '-1234.57'], [1e100, '1e+100'], [12.5, '12.5']];
  for (const [value, text] of cases) assert.equal(formatG(value), text, String(value));
});

describe('in chromium', () => {
  let site;
  before(async () => {
    site = await openSite({ width: 1100, height: 800, folder: `${root}/web/site` });
    await site.page.goto(`${site.url}vorel.css`);
    await site.page.setContent('<!doctype html><html lang="es"><body></body></html>');
  });
  after(async () => {
    assert.deepEqual(site.errors, []);
    await site.close();
  });

  // The boxes of the picture's texts as the browser lays them out.
  const boxes = (chart) => site.page.evaluate(async (data) => {
    const { chartSvg: draw } = await import('/js/chart.mjs');
    const svg = draw(data);
    document.body.replaceChildren(svg);
    const box = (e) => { const b = e.getBoundingClientRect(); return { x: b.x, y: b.y, w: b.width, h: b.height }; };
    const texts = (selector) => [...svg.querySelectorAll(selector)].map(box);
    return {
      element: svg instanceof SVGSVGElement, picture: box(svg),
      titles: svg.querySelectorAll('title').length,
      // The plot, from the rectangle its series are clipped to (which is not drawn).
      plot: (({ x, y, width, height }) => ({
        x: svg.getBoundingClientRect().x + x.baseVal.value, y: svg.getBoundingClientRect().y + y.baseVal.value,
        w: width.baseVal.value, h: height.baseVal.value,
      }))(svg.querySelector('clipPath rect')),
      values: texts('.valores .etiqueta'), categories: texts('.categorias .etiqueta'),
      axisTitles: texts('.titulo-eje'), legend: texts('.leyenda .entrada'), title: texts('.titulo'),
    };
  }, chart);

  const inside = (b, p) => b.x >= p.x - 0.5 && b.y >= p.y - 0.5 && b.x + b.w <= p.x + p.w + 0.5
    && b.y + b.h <= p.y + p.h + 0.5;
  const apart = (a, b) => a.x + a.w <= b.x + 0.5 || b.x + b.w <= a.x + 0.5 || a.y + a.h <= b.y + 0.5
    || b.y + b.h <= a.y + 0.5;

  for (const [id, example] of [['costes-totales', 'tres-opciones'], ['control-variables', 'cuarenta-y-cinco'],
    ['curvas-experiencia', 'sin-aprendizaje'], ['control-atributos', 'p-variable']]) {
    test(`${id} ${example}: a real <svg>, its texts apart and inside the picture`, async () => {
      const b = await boxes(await exampleChart(id, example));
      assert.ok(b.element);
      assert.equal(b.titles, 1);
      const texts = [...b.values, ...b.categories, ...b.axisTitles, ...b.legend, ...b.title];
      for (const t of texts) assert.ok(inside(t, b.picture), JSON.stringify([t, b.picture]));
      for (let i = 0; i < texts.length; i += 1) {
        for (let j = i + 1; j < texts.length; j += 1) {
          assert.ok(apart(texts[i], texts[j]), JSON.stringify([texts[i], texts[j]]));
        }
      }
      // The value labels stand left of the plot, the row labels under it.
      for (const v of b.values) assert.ok(v.x + v.w <= b.plot.x, JSON.stringify([v, b.plot]));
      for (const c of b.categories) assert.ok(c.y >= b.plot.y + b.plot.h, JSON.stringify([c, b.plot]));
    });
  }
});
