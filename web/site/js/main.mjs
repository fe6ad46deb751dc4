// Vorel in the browser: the core as WebAssembly, the screens drawn from their
// descriptions, the start screen first.
import { loadCore } from './core.mjs';
import { Desk } from './desk.mjs';
import { measureReportFont } from './report.mjs';

// Offline: the service worker keeps the site. A new version it fetched on an
// earlier visit takes over now, before anything of this one runs.
if ('serviceWorker' in navigator) {
  const registration = await navigator.serviceWorker.register('sw.js', { updateViaCache: 'none' });
  if (registration.waiting && navigator.serviceWorker.controller) {
    navigator.serviceWorker.addEventListener('controllerchange', () => window.location.reload());
    registration.waiting.postMessage('activar');
    await new Promise(() => {});  // the reload follows
  }
}

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
