// The system's message boxes and the help view, as modal dialogs.
import { el } from './dom.mjs';

// A message box with one OK button; resolves when it is closed (OK, Enter or
// Escape). The focus goes back where it was.
export function messageBox(title, text, { kind = 'mensaje' } = {}) {
  return new Promise((resolve) => {
    const back = document.activeElement;
    const ok = el('button', { type: 'button', className: 'aceptar', textContent: 'Aceptar' });
    const dialog = el('dialog', { className: `caja ${kind}`, 'aria-label': title },
      el('header', { textContent: title }),
      el('p', { className: 'texto', textContent: text }),
      el('footer', {}, ok));
    ok.addEventListener('click', () => dialog.close());
    dialog.addEventListener('close', () => {
      dialog.remove();
      if (back && back.isConnected) back.focus();
      resolve();
    });
    document.body.append(dialog);
    dialog.showModal();
    ok.focus();
  });
}

// The help pages, one per menu and model, in a view over the program.
export function showHelp(page, title) {
  document.querySelector('dialog.ayuda')?.close();
  const close = el('button', { type: 'button', className: 'aceptar', textContent: 'Cerrar' });
  const dialog = el('dialog', { className: 'ayuda', 'aria-label': title },
    el('header', {}, el('span', { textContent: title }), close),
    el('iframe', { src: `ayuda/${page}`, title }));
  close.addEventListener('click', () => dialog.close());
  dialog.addEventListener('close', () => dialog.remove());
  document.body.append(dialog);
  dialog.showModal();
}
