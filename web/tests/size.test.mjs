// The whole site, help and pictures included, downloads in under 2 MB.
import { test } from 'node:test';
import assert from 'node:assert/strict';
import { root } from './browser.mjs';
import { siteDownload } from './size.mjs';

test('the whole site gzips to under 2 MB', () => {
  const { raw, gzip } = siteDownload(`${root}/build-web/site`);
  assert.ok(raw > 1e6, 'the site is built, WebAssembly included');
  assert.ok(gzip < 2 * 1024 * 1024, `${gzip} bytes gzipped`);
});
