// Vorel in the browser: the core as WebAssembly, the screens drawn from their
// descriptions, the start screen first.
import { loadCore } from './core.mjs';
import { Desk } from './desk.mjs';
import { measureReportFont } from './report.mjs';

// Offline: the service worker keeps the site and brings new versions.
if ('serviceWorker' in navigator) {
  navigator.serviceWorker.register('sw.js', { updateViaCache: 'none' });
}

async function start() {
  const core = await loadCore();
  const desk = new Desk(core, {
    desk: document.getElementById('escritorio'),
    bar: document.getElementById('barra'),
    printView: document.getElementById('impresion'),
    filePicker: document.getElementById('archivo'),
    averageEm: await measureReportFont(core),
  });
  window.vorel = desk;  // for the tests and the curious
  desk.start();
}

await start();
