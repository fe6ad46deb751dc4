// The WebAssembly vorel-report, run by node, solves every example of every
// model to the golden texts of the native program, byte for byte: the screen
// report (.report), the printed page (.page) and, for a charted model, the
// chart data (.chart). A run that prints no report keeps, as in the native
// goldens, "[salida N]" and its stderr; a run that does print one must leave
// stderr empty.
//
// VOREL_WEB_BUILD names the build folder (default build-web).
import assert from 'node:assert/strict';
import { execFile } from 'node:child_process';
import { existsSync, mkdtempSync, readdirSync, readFileSync, rmSync } from 'node:fs';
import { availableParallelism, tmpdir } from 'node:os';
import path from 'node:path';
import { before, describe, test } from 'node:test';
import { fileURLToPath } from 'node:url';

const root = path.resolve(path.dirname(fileURLToPath(import.meta.url)), '..', '..');
const program = path.resolve(root, process.env.VOREL_WEB_BUILD ?? 'build-web', 'vorel-report.js');
const examples = path.join(root, 'examples');
const goldens = path.join(root, 'tests', 'golden');

// Runs the program; resolves to its stdout, stderr (both bytes) and status.
function run(args) {
  return new Promise((resolve, reject) => {
    execFile(process.execPath, [program, ...args],
             { encoding: 'buffer', maxBuffer: 64 << 20 }, (error, stdout, stderr) => {
               if (error && typeof error.code !== 'number') return reject(error);
               if (error && error.signal) return reject(error);
               resolve({ stdout, stderr, status: error ? error.code : 0 });
             });
  });
}

// The native golden test's transcript: stdout, then, for a non-zero status,
// "[salida N]" and stderr.
function transcript({ stdout, stderr, status }) {
  if (status === 0) {
    assert.equal(stderr.toString('utf8'), '', 'nothing on stderr when the report is printed');
    return stdout;
  }
  return Buffer.concat([stdout, Buffer.from(`[salida ${status}]\n`), stderr]);
}

function assertSameBytes(actual, goldenPath) {
  assert.ok(existsSync(goldenPath), `no golden text ${goldenPath}`);
  const expected = readFileSync(goldenPath);
  if (actual.equals(expected)) return;
  assert.equal(actual.toString('utf8'), expected.toString('utf8'), goldenPath);
  assert.fail(`${goldenPath}: same text, different bytes`);
}

// Runs `jobs` (functions returning promises), at most `width` at a time.
async function pool(jobs, width) {
  const results = new Array(jobs.length);
  let next = 0;
  async function worker() {
    while (next < jobs.length) {
      const i = next++;
      results[i] = await jobs[i]();
    }
  }
  await Promise.all(Array.from({ length: Math.min(width, jobs.length) }, worker));
  return results;
}

const models = readdirSync(examples).sort();
const cases = models.flatMap((id) =>
  readdirSync(path.join(examples, id)).sort().map((name) => ({
    id,
    file: path.join(examples, id, name),
    golden: path.join(goldens, id, path.parse(name).name),
  })));

describe('vorel-report.js over every example', () => {
  const results = new Map();
  let listed = '';

  before(async () => {
    assert.ok(existsSync(program), `${program} is missing: make web builds it`);
    listed = (await run(['--list'])).stdout.toString('utf8');
    const jobs = cases.flatMap((c) => ['', '--print', '--chart'].map((option) => async () => {
      const args = [c.id, c.file, ...(option ? [option] : [])];
      results.set(`${c.file} ${option}`, await run(args));
    }));
    await pool(jobs, Math.max(1, Math.min(availableParallelism(), 4)));
  });

  test('every examples folder is a model the program lists', () => {
    assert.ok(cases.length > 0);
    for (const id of models) assert.match(listed, new RegExp(`^${id}\\t`, 'm'), id);
  });

  for (const c of cases) {
    test(path.relative(root, c.file), () => {
      assertSameBytes(transcript(results.get(`${c.file} `)), `${c.golden}.report`);
      assertSameBytes(transcript(results.get(`${c.file} --print`)), `${c.golden}.page`);
      const chart = transcript(results.get(`${c.file} --chart`));
      if (chart.toString('utf8').startsWith('Gráfico:') || existsSync(`${c.golden}.chart`))
        assertSameBytes(chart, `${c.golden}.chart`);
    });
  }
});

describe('vorel-report.js command line', () => {
  test('several files: each headed, messages named, the highest status', async () => {
    const book = path.join(examples, 'cep', 'libro.txt');
    const zero = path.join(examples, 'cep', 'demanda-cero.txt');
    const out = await run(['cep', book, zero, '--print']);
    assert.equal(out.status, 1);
    const page = readFileSync(path.join(goldens, 'cep', 'libro.page'));
    assert.ok(out.stdout.equals(Buffer.concat([
      Buffer.from(`==> ${book} <==\n`), page, Buffer.from(`==> ${zero} <==\n`)])),
              out.stdout.toString('utf8'));
    const message = readFileSync(path.join(goldens, 'cep', 'demanda-cero.page'), 'utf8')
                        .replace('[salida 1]\n', '');
    assert.equal(out.stderr.toString('utf8'), `${zero}: ${message}`);
  });

  test('--pdf is refused before any file is read, with status 2', async () => {
    const dir = mkdtempSync(path.join(tmpdir(), 'vorel-web-'));
    try {
      const pdf = path.join(dir, 'out.pdf');
      const out = await run(['cep', '/no/such/file.txt', '--pdf', pdf]);
      assert.equal(out.status, 2);
      assert.equal(out.stdout.length, 0);
      assert.match(out.stderr.toString('utf8'), /^--pdf no está disponible en esta versión/);
      assert.ok(!existsSync(pdf));
    } finally {
      rmSync(dir, { recursive: true, force: true });
    }
  });

  test('an unreadable file and a bad command line end with status 2', async () => {
    const missing = await run(['cep', '/no/such/file.txt']);
    assert.deepEqual([missing.status, missing.stderr.toString('utf8')],
                     [2, 'No se pudo leer el fichero: /no/such/file.txt\n']);
    const usage = await run(['cep']);
    assert.equal(usage.status, 2);
    assert.match(usage.stderr.toString('utf8'), /^Uso: vorel-report --list\n/);
  });
});
