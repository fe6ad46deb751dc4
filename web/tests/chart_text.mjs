// The chart data that vorel-report prints with --chart, read back into the
// shape of the core's chart JSON (web/chart_json.h), and the program run for
// it. The numbers are the printed ones (a Single's seven digits).
import { execFile } from 'node:child_process';
import path from 'node:path';
import { fileURLToPath } from 'node:url';

export const root = path.resolve(path.dirname(fileURLToPath(import.meta.url)), '..', '..');
export const program = path.resolve(root, process.env.VOREL_WEB_BUILD ?? 'build-web', 'vorel-report.js');

export function parseChartText(text) {
  const lines = text.replace(/\n$/, '').split('\n');
  const field = (k, prefix) => {
    assertStarts(lines[k], prefix);
    return lines[k].slice(prefix.length);
  };
  const title = field(0, 'Gráfico:').replace(/^ /, '');
  const kind = field(1, 'Tipo: ') === 'XY' ? 'xy' : 'lines';
  const categoryTitle = field(2, 'Eje de categorías: ');
  const value = /^(.*) \((?:(automático)|mínimo(.*), máximo(.*), división(.*))\)$/.exec(field(3, 'Eje de valores: '));
  if (!value) throw new Error(`not a value axis: ${lines[3]}`);
  const page = /^izquierda(.*), arriba(.*)$/.exec(field(4, 'Página: '));
  const header = field(5, 'Punto\t').split('\t');
  const series = kind === 'xy'
    ? header.filter((_, k) => k % 2 === 0).map((h) => h.replace(/ \(x\)$/, ''))
    : header;
  const rows = [];
  const matrix = [];
  for (const line of lines.slice(6)) {
    const [label, ...cells] = line.split('\t');
    rows.push(label);
    matrix.push(cells.map(Number));
  }
  return {
    kind, title, categoryTitle, valueTitle: value[1], series, rows, matrix,
    axis: value[2]
      ? { automatic: true, minimum: 0, maximum: 0, majorDivision: 0 }
      : { automatic: false, minimum: Number(value[3]), maximum: Number(value[4]), majorDivision: Number(value[5]) },
    pageLeft: Number(page[1]), pageTop: Number(page[2]),
  };
}

function assertStarts(line, prefix) {
  if (!line?.startsWith(prefix)) throw new Error(`expected "${prefix}…", read "${line}"`);
}

// The chart of an example (or of one of its model's other charts), as the
// WebAssembly command line prints it; null where the problem gives none.
export function exampleChart(id, example, grafico) {
  const args = [program, id, path.join(root, 'examples', id, `${example}.txt`), '--chart',
    ...(grafico ? ['--grafico', grafico] : [])];
  return new Promise((resolve, reject) => {
    execFile(process.execPath, args, { maxBuffer: 16 << 20 }, (error, stdout) => {
      if (error && typeof error.code !== 'number') return reject(error);
      resolve(stdout.startsWith('Gráfico:') ? parseChartText(stdout) : null);
    });
  });
}
