// Reports in zones: the core lays the lines out in ems of the report font
// (Arial, whose metrics Liberation Sans and Arimo share); here they are placed
// in pixels, on the screen at 8.25 pt and on paper at 12 pt.
import { el } from './dom.mjs';
import { chartSvg } from './chart.mjs';

export const FONT = 'Arial, "Liberation Sans", Arimo, sans-serif';
const SCREEN_PX = 11;
const PAGE_PX = 16;
const LINE = 1.15;  // the font's line spacing, in ems

// Measures the report font once and hands its advances to the core.
export async function measureReportFont(core) {
  await document.fonts.load(`100px ${FONT}`);
  const context = document.createElement('canvas').getContext('2d');
  context.font = `100px ${FONT}`;
  const widths = [];
  for (let code = 0; code < 256; code += 1) {
    widths.push(code < 32 || (code >= 127 && code < 160) ? 0
      : context.measureText(String.fromCharCode(code)).width / 100);
  }
  return core.metrics(widths);
}

function paint(target, lines, px) {
  target.replaceChildren(...lines.map((line) => el('div', { className: 'linea' },
    line.map((piece) => el('span', {
      textContent: piece.text, style: `left: ${(piece.x * px).toFixed(2)}px`,
    })))));
  target.style.fontSize = `${px}px`;
}

// Paints a solution's report on its box, sized for the model's largest report
// and at least for this one.
export function paintReport(box, solved, averageEm) {
  const page = box.querySelector('.hoja') ?? box.appendChild(el('div', { className: 'hoja' }));
  paint(page, solved.screen, SCREEN_PX);
  const widest = Math.max(averageEm * Number(box.dataset.columns), widestLine(solved.screen));
  page.style.width = `${Math.ceil(widest * SCREEN_PX) + 24}px`;
  page.style.height = `${Math.ceil(LINE * SCREEN_PX * Number(box.dataset.lines)) + 8}px`;
  box.dataset.text = solved.text;  // what a copy takes, and what tests read
}

export function clearReport(box) {
  box.querySelector('.hoja')?.replaceChildren();
  delete box.dataset.text;
}

// The printable area of an A4 page less 10 mm margins, in CSS pixels.
export const PRINTABLE = { width: 718, height: 1047 };
// A chart's picture on paper keeps its size on screen.
const CHART = { width: 480, height: 330 };

// Imprimir: the printed page joins the document being gathered in the print
// view, as the desktop's text prints gather in one printer document; the type
// is made just small enough for the widest line to fit the paper, as on the
// desktop. A page with a chart takes a sheet of its own, the chart at its
// place on the paper, and ends the document: `true` when it did, and the
// document is then to be printed at once.
export function gatherPage(view, solved) {
  if (view.dataset.printed) {
    view.replaceChildren();
    delete view.dataset.printed;
  }
  const px = Math.min(PAGE_PX, PRINTABLE.width / Math.max(widestLine(solved.page), 1));
  const sheet = el('div', { className: 'impreso' });
  paint(sheet, solved.page, px);
  // The chart the page keeps, where it is not the one on view.
  const chart = solved.pageChart ?? solved.chart;
  if (chart) {
    const left = PRINTABLE.width * chart.pageLeft;
    const top = PRINTABLE.height * chart.pageTop;
    const width = Math.max(0, Math.min(CHART.width, PRINTABLE.width - left));
    sheet.append(el('div', {
      className: 'grafico-impreso',
      style: `left: ${left.toFixed(2)}px; top: ${top.toFixed(2)}px; width: ${width.toFixed(2)}px`,
    }, chartSvg(chart)));
    sheet.classList.add('con-grafico');
    sheet.style.height = `${PRINTABLE.height}px`;
  }
  sheet.dataset.text = solved.pageText;
  view.append(sheet);
  return Boolean(chart);
}

// The gathered document through the browser's print dialog (a printer, or a
// PDF); the next Imprimir starts another.
export function printGathered(view) {
  if (!gathered(view)) return;
  window.print();
  view.dataset.printed = 'sí';
}

// How many pages wait to be printed.
export function gathered(view) {
  return view.dataset.printed ? 0 : view.children.length;
}

// The widest line of a laid-out report, in ems of the report font.
export function widestLine(lines) {
  const context = document.createElement('canvas').getContext('2d');
  context.font = `100px ${FONT}`;
  let widest = 0;
  for (const line of lines) {
    const last = line[line.length - 1];
    if (last) widest = Math.max(widest, last.x + context.measureText(last.text).width / 100);
  }
  return widest;
}
