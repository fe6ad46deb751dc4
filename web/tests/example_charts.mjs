// The charts of the examples as the browser edition receives them: the core's
// chart JSON (web/chart_json.h), printed by the WebAssembly command line with
// --chart-json. VOREL_WEB_BUILD names the build folder (default build-web).
import { execFile } from 'node:child_process';
import { readdirSync } from 'node:fs';
import path from 'node:path';
import { fileURLToPath } from 'node:url';

export const root = path.resolve(path.dirname(fileURLToPath(import.meta.url)), '..', '..');
export const program = path.resolve(root, process.env.VOREL_WEB_BUILD ?? 'build-web', 'vorel-report.js');

// The models that draw a chart, and the other charts a model opens.
export const CHARTED = ['costes-totales', 'curvas-experiencia', 'control-variables', 'control-atributos',
  'control-defectos'];
export const VIEWS = { 'control-variables': ['desviaciones', 'recorridos'] };

// The chart of an example (or one of its model's other charts); null where
// the problem gives none (a failed check, a run-time error, a view it hides).
export function exampleChart(id, example, grafico) {
  const args = [program, id, path.join(root, 'examples', id, `${example}.txt`), '--chart-json',
    ...(grafico ? ['--grafico', grafico] : [])];
  return new Promise((resolve, reject) => {
    execFile(process.execPath, args, { maxBuffer: 16 << 20 }, (error, stdout) => {
      if (error && typeof error.code !== 'number') return reject(error);
      resolve(!error && stdout.startsWith('{') ? JSON.parse(stdout) : null);
    });
  });
}

// Every chart of every example of the charted models: [{ id, example, grafico, chart }].
export async function everyExampleChart() {
  const runs = CHARTED.flatMap((id) => readdirSync(path.join(root, 'examples', id)).sort()
    .map((name) => path.parse(name).name)
    .flatMap((example) => [undefined, ...(VIEWS[id] ?? [])].map((grafico) => ({ id, example, grafico }))));
  const charts = [];
  for (let i = 0; i < runs.length; i += 2) {
    // Two at a time: the machine's cores are shared.
    const done = await Promise.all(runs.slice(i, i + 2).map(async (r) => ({ ...r, chart: await exampleChart(r.id, r.example, r.grafico) })));
    charts.push(...done.filter((r) => r.chart));
  }
  return charts;
}
