// Lays out the browser edition's site: node web/build-site.mjs SOURCE SITE.
// Beside the module the build linked into SITE it puts the page, its scripts
// and styles, the program's pictures, the help pages, the app's icons, and
// precache.js: every file of this version, which the service worker keeps
// for working offline, named by a hash of their contents.
import { createHash } from 'node:crypto';
import { spawnSync } from 'node:child_process';
import { cpSync, mkdirSync, readdirSync, readFileSync, statSync, writeFileSync } from 'node:fs';
import { join, relative } from 'node:path';

const [source, site] = process.argv.slice(2);
const copy = (from, to, keep = () => true) => {
  mkdirSync(to, { recursive: true });
  for (const name of readdirSync(from)) if (keep(name)) cpSync(join(from, name), join(to, name), { recursive: true });
};
copy(join(source, 'web/site'), site);
const pictures = join(source, 'resources/pictures');
copy(pictures, join(site, 'img'), (n) => n.endsWith('.svg'));
copy(pictures, join(site, 'ayuda/img'), (n) => n.endsWith('.svg'));
copy(join(source, 'help'), join(site, 'ayuda'), (n) => /\.(html|css)$/.test(n));
for (const size of [192, 512]) {
  const made = spawnSync('rsvg-convert', ['-w', size, '-h', size, '-o', join(site, `img/icono-${size}.png`),
    join(pictures, 'logo.svg')]);
  if (made.status !== 0) throw new Error(`rsvg-convert: ${made.stderr}`);
}

const files = [];
const walk = (folder) => {
  for (const name of readdirSync(folder).sort()) {
    const path = join(folder, name);
    if (statSync(path).isDirectory()) walk(path);
    else files.push(relative(site, path));
  }
};
walk(site);
const precached = files.filter((f) => f !== 'precache.js' && f !== 'sw.js');
const hash = createHash('sha256');
for (const file of precached) hash.update(file).update(readFileSync(join(site, file)));
writeFileSync(join(site, 'precache.js'), `// Made by web/build-site.mjs: the files of this version of the site.
self.PRECACHE = ${JSON.stringify({ version: hash.digest('hex').slice(0, 16), files: ['./', ...precached] }, null, 1)};
`);
