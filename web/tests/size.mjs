// The site's download: every file of the built site, gzipped as a server
// would send it.
import { readdirSync, readFileSync, statSync } from 'node:fs';
import { join } from 'node:path';
import { gzipSync } from 'node:zlib';

export function siteDownload(folder) {
  let raw = 0;
  let gzip = 0;
  const walk = (dir) => {
    for (const name of readdirSync(dir)) {
      const path = join(dir, name);
      if (statSync(path).isDirectory()) walk(path);
      else {
        const bytes = readFileSync(path);
        raw += bytes.length;
        gzip += gzipSync(bytes, { level: 9 }).length;
      }
    }
  };
  walk(folder);
  return { raw, gzip };
}
