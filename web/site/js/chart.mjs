// Charts as SVG, drawn from the core's chart data (the JSON of web/chart_json.h)
// the way the desktop draws them: the same series colours, line widths and
// markers, the same value axis (fixed, or automatic in round numbers) and its
// labels to the digit, the same row labels, the legend under the plot. The
// picture is 480 by 330 units, the desktop's chart picture, and scales as a
// vector drawing on the screen and on paper.
//
//   chartSvg(chart, { width, height, document }) -> an <svg> element
//
// `document` is the page's unless given (any object with createElementNS).

const SVG = 'http://www.w3.org/2000/svg';

// The desktop's chart theme.
export const SERIES_COLOURS = ['#209fdf', '#99ca53', '#f6a625', '#6d5fd5', '#bf593e'];
const TEXT = '#404044';
const AXIS_LINE = '#d6d6d6';
const GRID_LINE = '#e2e2e2';
const LINE_WIDTH = 2;
const MARKER_RADIUS = 1.5 * LINE_WIDTH;
const FONT_FAMILY = '"DejaVu Sans", Verdana, sans-serif';
const FONT_SIZE = 12;
const TICK = 5;

// The picture's margins and blocks, in its units.
const INSET = { left: 31, right: 30, top: 31, bottom: 41 };
const TITLE_BLOCK = 17;        // a chart title over the plot
const AXIS_TITLE_BLOCK = 20;   // an axis title beside its labels
const LABEL_GAP = 6;           // from a value label to the plot (past its tick)
const LEGEND_HEIGHT = 16;
const LEGEND_MARKER = 7;
const LEGEND_GAP = 6;          // from a legend marker to its name
const LEGEND_SPACING = 10;     // between legend entries
const LEGEND_OFFSET = 8;       // the legend's middle left of the picture's

// The automatic axis starts from this many labels, as the desktop's does.
const DEFAULT_TICKS = 5;
// More divisions than this leave no room for their labels.
const MOST_DIVISIONS = 20;
// The most row labels a chart's width holds side by side.
const MOST_ROW_LABELS = 15;

// ---------------------------------------------------------------- numbers

// printf's %.6g: six significant digits, no trailing zeros, an exponent of at
// least two digits beyond 1e6 or below 1e-4. Ties round away from zero, as
// the desktop's formatting does.
export function formatG(value) {
  const precision = 6;
  if (Number.isNaN(value)) return 'nan';
  if (!Number.isFinite(value)) return value > 0 ? 'inf' : '-inf';
  if (value === 0) return Object.is(value, -0) ? '-0' : '0';
  const strip = (digits) => (digits.includes('.') ? digits.replace(/\.?0+$/, '') : digits);
  const [mantissa, power] = value.toExponential(precision - 1).split('e');
  const exponent = Number(power);
  if (exponent < -4 || exponent >= precision) {
    const sign = exponent < 0 ? '-' : '+';
    return `${strip(mantissa)}e${sign}${String(Math.abs(exponent)).padStart(2, '0')}`;
  }
  return strip(value.toFixed(precision - 1 - exponent));
}

function powerOfTen(n) {
  // Exact for the powers a chart meets, and the nearest double otherwise.
  return n >= 0 ? 10 ** n : 1 / 10 ** -n;
}

// A round number near x: 1, 2 or 5 times a power of ten, the least not under
// x (ceiling) or the nearest.
function niceNumber(x, ceiling) {
  const z = powerOfTen(Math.floor(Math.log10(x)));
  const q = x / z;
  let m;
  if (ceiling) m = q <= 1 ? 1 : q <= 2 ? 2 : q <= 5 ? 5 : 10;
  else m = q < 1.5 ? 1 : q < 3 ? 2 : q < 7 ? 5 : 10;
  return m * z;
}

// The span of the values, widened to round numbers: the bounds and the number
// of labels (every step from the bound to the bound).
export function niceAxis(low, high, ticks = DEFAULT_TICKS) {
  if (low === high) { low -= 1; high += 1; }
  const range = niceNumber(high - low, true);
  const step = niceNumber(range / (ticks - 1), false);
  const first = Math.floor(low / step);
  const last = Math.ceil(high / step);
  return { minimum: first * step, maximum: last * step, ticks: last - first + 1 };
}

// The labels of a value axis: `ticks` values evenly from minimum to maximum.
export function tickValues({ minimum, maximum, ticks }) {
  if (!(maximum > minimum) || ticks < 2) return [];
  return Array.from({ length: ticks }, (_, i) => minimum + (i * (maximum - minimum)) / (ticks - 1));
}

// The step between labelled rows: the least of 2, 5, 10, 20, 50, ... that
// leaves at most MOST_ROW_LABELS labels.
export function rowLabelStep(rows) {
  for (let decade = 1; ; decade *= 10) {
    for (const m of [2, 5, 10]) {
      if (Math.floor(rows / (m * decade)) + 1 <= MOST_ROW_LABELS) return m * decade;
    }
  }
}

// ---------------------------------------------------------------- the data

const finite = (v) => typeof v === 'number' && Number.isFinite(v);

// The series as the desktop reads them from the matrix: a missing cell is 0,
// a null (a number JSON cannot hold) is no point.
export function chartSeries(chart) {
  const matrix = chart.matrix ?? [];
  const columns = Math.max(0, ...matrix.map((row) => row.length));
  const xy = chart.kind === 'xy';
  const count = xy ? Math.floor(columns / 2) : columns;
  const cell = (r, c) => (c < matrix[r].length ? matrix[r][c] : 0);
  return Array.from({ length: count }, (_, s) => ({
    name: s < (chart.series ?? []).length ? chart.series[s] : `Serie ${s + 1}`,
    colour: SERIES_COLOURS[s % SERIES_COLOURS.length],
    points: matrix.map((_, r) => (xy ? [cell(r, 2 * s), cell(r, 2 * s + 1)] : [r, cell(r, s)])),
  }));
}

function span(series, coordinate) {
  let low = Infinity;
  let high = -Infinity;
  for (const s of series) {
    for (const p of s.points) {
      if (finite(p[0]) && finite(p[1])) {
        low = Math.min(low, p[coordinate]);
        high = Math.max(high, p[coordinate]);
      }
    }
  }
  return low <= high ? [low, high] : null;
}

// The value axis: fixed bounds parted into the chart's major divisions, or
// the data's span in round numbers.
export function valueAxis(chart, series = chartSeries(chart)) {
  const axis = chart.axis ?? { automatic: true };
  if (!axis.automatic && axis.maximum > axis.minimum) {
    const ticks = axis.majorDivision >= 1
      ? Math.trunc(Math.min(axis.majorDivision, MOST_DIVISIONS)) + 1 : DEFAULT_TICKS;
    return { minimum: axis.minimum, maximum: axis.maximum, ticks };
  }
  const values = span(series, 1);
  return values ? niceAxis(...values) : { minimum: 0, maximum: 1, ticks: 0 };
}

// The horizontal axis: for XY charts a value axis over the x's; for lines the
// rows evenly spaced, each labelled under its point when they are few, else
// the first and every k-th.
export function categoryAxis(chart, series = chartSeries(chart)) {
  const rows = (chart.matrix ?? []).length;
  if (chart.kind === 'xy') {
    const values = span(series, 0);
    const axis = values ? niceAxis(...values) : { minimum: 0, maximum: 1, ticks: 0 };
    const labels = tickValues(axis).map((v) => ({ at: v, text: formatG(v) }));
    return { ...axis, labels, grid: labels.map((l) => l.at) };
  }
  const label = (r) => (r < (chart.rows ?? []).length ? chart.rows[r] : String(r + 1));
  const axis = { minimum: -0.5, maximum: rows - 0.5 };
  if (rows <= MOST_ROW_LABELS) {
    // One label per row, centred on it; the grid parts the rows.
    const labels = Array.from({ length: rows }, (_, r) => ({ at: r, text: label(r) }));
    return { ...axis, labels, grid: Array.from({ length: rows + 1 }, (_, r) => r - 0.5) };
  }
  const step = rowLabelStep(rows);
  const labels = [];
  for (let r = 0; r < rows; r += 1) {
    if (r === 0 || (r + 1) % step === 0) labels.push({ at: r, text: label(r) });
  }
  // The grid under the labelled rows, between the plot's edges.
  return { ...axis, labels, grid: [axis.minimum, ...labels.map((l) => l.at), axis.maximum], step };
}

// ---------------------------------------------------------------- drawing

// Advances of the chart font, in ems, for laying out labels before the
// picture is on a page.
const ADVANCE = {
  ' ': 0.318, '.': 0.318, ',': 0.318, '-': 0.361, '+': 0.838, '(': 0.39, ')': 0.39, '%': 0.95,
  i: 0.278, j: 0.278, l: 0.278, f: 0.352, t: 0.392, r: 0.411, m: 0.974, w: 0.818, I: 0.295,
};
export function textWidth(text, size = FONT_SIZE, bold = false) {
  let ems = 0;
  for (const c of String(text)) {
    if (c in ADVANCE) ems += ADVANCE[c];
    else if (c >= '0' && c <= '9') ems += 0.636;
    else if (c !== c.toLowerCase()) ems += 0.7;
    else ems += 0.6;
  }
  return ems * size * (bold ? 1.12 : 1);
}

const round = (v) => Math.round(v * 100) / 100;

let charts = 0;

export function chartSvg(chart, { width = 480, height = 330, document = globalThis.document } = {}) {
  const node = (name, attributes = {}, children = []) => {
    const e = document.createElementNS(SVG, name);
    for (const [k, v] of Object.entries(attributes)) {
      if (v !== undefined && v !== null) e.setAttribute(k, String(v));
    }
    for (const child of children) e.appendChild(child);
    return e;
  };
  const text = (content, attributes) => {
    const e = node('text', attributes);
    e.textContent = content;
    return e;
  };

  const series = chartSeries(chart);
  const vertical = valueAxis(chart, series);
  const horizontal = categoryAxis(chart, series);
  const xy = chart.kind === 'xy';
  const title = chart.title ?? '';
  const valueTitle = chart.valueTitle ?? '';
  const categoryTitle = chart.categoryTitle ?? '';
  const valueLabels = tickValues(vertical).map((v) => ({ at: v, text: formatG(v) }));

  // The plot: the picture less its margins, the title, the legend, the axes'
  // labels and titles.
  const legendMiddle = height - INSET.bottom - LEGEND_HEIGHT / 2;
  const plot = {
    top: INSET.top + FONT_SIZE / 2 + (title ? TITLE_BLOCK : 0),
    bottom: legendMiddle - LEGEND_HEIGHT / 2 - 15 - (categoryTitle ? AXIS_TITLE_BLOCK : 0)
      - (FONT_SIZE + TICK + 1),
    left: INSET.left + (valueTitle ? AXIS_TITLE_BLOCK : 0)
      + Math.max(0, ...valueLabels.map((l) => textWidth(l.text))) + LABEL_GAP,
    right: width - INSET.right,
  };
  if (xy && horizontal.labels.length) {
    // The value labels under the ends of the plot stand half outside it.
    plot.right -= textWidth(horizontal.labels.at(-1).text) / 2;
    plot.left = Math.max(plot.left, INSET.left + textWidth(horizontal.labels[0].text) / 2);
  }
  const x = (v) => plot.left + ((v - horizontal.minimum) / (horizontal.maximum - horizontal.minimum))
    * (plot.right - plot.left);
  const y = (v) => plot.bottom - ((v - vertical.minimum) / (vertical.maximum - vertical.minimum))
    * (plot.bottom - plot.top);

  const names = series.map((s) => s.name);
  const label = `Gráfico${title ? ` «${title}»` : ''}; series: ${names.join(', ')}`;
  const svg = node('svg', {
    xmlns: SVG, class: 'grafico', role: 'img', 'aria-label': label,
    width, height, viewBox: `0 0 ${width} ${height}`,
    'font-family': FONT_FAMILY, 'font-size': FONT_SIZE, 'data-kind': xy ? 'xy' : 'lines',
  });
  const heading = node('title');
  heading.textContent = title ? `Gráfico: ${title}` : 'Gráfico';
  svg.appendChild(heading);
  const description = node('desc');
  description.textContent = `${valueTitle || 'Valores'} de ${formatG(vertical.minimum)} a `
    + `${formatG(vertical.maximum)}; ${xy ? (categoryTitle || 'x') : `${(chart.matrix ?? []).length} puntos`}; `
    + `series: ${names.join(', ')}`;
  svg.appendChild(description);

  if (title) {
    svg.appendChild(text(title, {
      class: 'titulo', x: round(width / 2), y: INSET.top + FONT_SIZE / 2,
      'text-anchor': 'middle', 'dominant-baseline': 'central', fill: TEXT,
    }));
  }

  // The grid, then the axes' lines, ticks and labels.
  const grid = node('g', { class: 'rejilla', stroke: GRID_LINE, 'stroke-width': 1, fill: 'none' });
  const hasRange = vertical.maximum > vertical.minimum && horizontal.maximum > horizontal.minimum;
  if (hasRange) {
    for (const l of valueLabels) {
      grid.appendChild(node('line', {
        x1: round(plot.left), x2: round(plot.right), y1: round(y(l.at)), y2: round(y(l.at)),
      }));
    }
    for (const at of horizontal.grid) {
      grid.appendChild(node('line', {
        x1: round(x(at)), x2: round(x(at)), y1: round(plot.top), y2: round(plot.bottom),
      }));
    }
  }
  svg.appendChild(grid);

  const values = node('g', { class: 'eje valores', 'data-axis': 'valores' });
  values.appendChild(node('line', {
    x1: round(plot.left), x2: round(plot.left), y1: round(plot.top), y2: round(plot.bottom),
    stroke: AXIS_LINE, 'stroke-width': 1,
  }));
  for (const l of hasRange ? valueLabels : []) {
    const at = round(y(l.at));
    values.appendChild(node('line', {
      x1: round(plot.left - TICK), x2: round(plot.left), y1: at, y2: at, stroke: AXIS_LINE, 'stroke-width': 1,
    }));
    values.appendChild(text(l.text, {
      class: 'etiqueta', x: round(plot.left - LABEL_GAP), y: at, 'text-anchor': 'end',
      'dominant-baseline': 'central', fill: TEXT, 'data-value': l.at,
    }));
  }
  if (valueTitle) {
    const cx = INSET.left + AXIS_TITLE_BLOCK / 2 - 2;
    const cy = round((plot.top + plot.bottom) / 2);
    values.appendChild(text(valueTitle, {
      class: 'titulo-eje', x: cx, y: cy, transform: `rotate(-90 ${cx} ${cy})`,
      'text-anchor': 'middle', 'dominant-baseline': 'central', 'font-weight': 'bold', fill: TEXT,
    }));
  }
  svg.appendChild(values);

  const categories = node('g', { class: 'eje categorias', 'data-axis': 'categorias' });
  categories.appendChild(node('line', {
    x1: round(plot.left), x2: round(plot.right), y1: round(plot.bottom), y2: round(plot.bottom),
    stroke: AXIS_LINE, 'stroke-width': 1,
  }));
  if (hasRange) {
    for (const at of horizontal.grid) {
      categories.appendChild(node('line', {
        x1: round(x(at)), x2: round(x(at)), y1: round(plot.bottom), y2: round(plot.bottom + TICK),
        stroke: AXIS_LINE, 'stroke-width': 1,
      }));
    }
    for (const l of horizontal.labels) {
      categories.appendChild(text(l.text, {
        class: 'etiqueta', x: round(x(l.at)), y: round(plot.bottom + TICK + 1 + FONT_SIZE / 2),
        'text-anchor': 'middle', 'dominant-baseline': 'central', fill: TEXT, 'data-value': l.at,
      }));
    }
  }
  if (categoryTitle) {
    categories.appendChild(text(categoryTitle, {
      class: 'titulo-eje', x: round((plot.left + plot.right) / 2),
      y: round(plot.bottom + TICK + 1 + FONT_SIZE + AXIS_TITLE_BLOCK / 2 + 3.5),
      'text-anchor': 'middle', 'dominant-baseline': 'central', 'font-weight': 'bold', fill: TEXT,
    }));
  }
  svg.appendChild(categories);

  // The series, clipped to the plot as the desktop clips them.
  charts += 1;
  const clip = `grafico-${charts}-plot`;
  svg.appendChild(node('clipPath', { id: clip }, [node('rect', {
    x: round(plot.left), y: round(plot.top),
    width: round(plot.right - plot.left), height: round(plot.bottom - plot.top),
  })]));
  const lines = node('g', { class: 'series', 'clip-path': `url(#${clip})` });
  series.forEach((s, index) => {
    const drawn = hasRange ? s.points.filter((p) => finite(p[0]) && finite(p[1])) : [];
    // A point that is no number breaks the line.
    let path = '';
    let pen = 'M';
    for (const p of hasRange ? s.points : []) {
      if (!(finite(p[0]) && finite(p[1]))) { pen = 'M'; continue; }
      path += `${pen}${round(x(p[0]))} ${round(y(p[1]))}`;
      pen = 'L';
    }
    const group = node('g', {
      class: 'serie', 'data-series': s.name, 'data-index': index, 'data-points': drawn.length,
    });
    group.appendChild(node('path', {
      d: path || 'M0 0', fill: 'none', stroke: s.colour, 'stroke-width': LINE_WIDTH,
      'stroke-linejoin': 'bevel', 'stroke-linecap': 'square', visibility: path ? undefined : 'hidden',
    }));
    const markers = node('g', { class: 'puntos', fill: s.colour });
    for (const p of drawn) {
      markers.appendChild(node('circle', { cx: round(x(p[0])), cy: round(y(p[1])), r: MARKER_RADIUS }));
    }
    group.appendChild(markers);
    lines.appendChild(group);
  });
  svg.appendChild(lines);

  // The legend: a square of each series' colour and its name, centred under
  // the plot.
  const legend = node('g', { class: 'leyenda' });
  const entryWidth = (s) => LEGEND_MARKER + LEGEND_GAP + textWidth(s.name);
  const legendWidth = series.reduce((w, s) => w + entryWidth(s), 0)
    + LEGEND_SPACING * Math.max(0, series.length - 1);
  let left = width / 2 - LEGEND_OFFSET - legendWidth / 2;
  for (const s of series) {
    const entry = node('g', { class: 'entrada', 'data-series': s.name });
    entry.appendChild(node('rect', {
      x: round(left), y: round(legendMiddle - LEGEND_MARKER / 2),
      width: LEGEND_MARKER, height: LEGEND_MARKER, fill: s.colour, stroke: '#000', 'stroke-width': 0.8,
    }));
    entry.appendChild(text(s.name, {
      x: round(left + LEGEND_MARKER + LEGEND_GAP), y: round(legendMiddle),
      'dominant-baseline': 'central', fill: TEXT,
    }));
    legend.appendChild(entry);
    left += entryWidth(s) + LEGEND_SPACING;
  }
  svg.appendChild(legend);
  return svg;
}
