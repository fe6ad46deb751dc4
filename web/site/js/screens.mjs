// The screens drawn from their descriptions: a window with its band (heading
// and window commands) and a body of controls and command pictures. What a
// command does is the desk's business (desk.mjs): here each press calls
// `press(command)`.
import { el, commandPicture } from './dom.mjs';

function windowFrame(info, heading, press, ...body) {
  const band = el('header', { className: 'banda' },
    el('h1', { textContent: heading }),
    el('div', { className: 'ventana', role: 'toolbar', 'aria-label': 'Ventana' },
      info.chrome.map((c) => commandPicture(c, press))));
  return el('section', {
    className: `pantalla ${info.kind}`,
    'data-screen': info.name,
    'aria-label': heading || info.caption,
    style: `--acento: ${info.color}`,
  }, band, el('div', { className: 'cuerpo' }, ...body));
}

export function startScreen(info, d) {
  const text = (i) => d.controls[i];
  const label = (c, tag) => el(tag, { className: c.name, textContent: c.text });
  return windowFrame(info, '', () => {},
    el('div', { className: 'logotipo' },
      el('img', { src: `img/${d.commands[0].picture}.svg`, alt: '', width: 96, height: 96 }),
      el('div', {}, label(text(0), 'p'), label(text(1), 'p'), label(text(2), 'p'))),
    el('img', { className: 'collage', src: `img/${d.commands[1].picture}.svg`, alt: '' }),
    label(text(3), 'p'), label(text(4), 'p'));
}

export function menuScreen(info, d, press) {
  const main = info.kind === 'main';
  const head = main
    ? el('div', { className: 'logotipo' },
      el('img', { src: `img/${d.commands[0].picture}.svg`, alt: '', width: 64, height: 64 }),
      el('div', {}, ...d.controls.map((c) => el('p', { className: c.name, textContent: c.text }))))
    : el('p', { className: 'intro', textContent: d.intro });
  const choices = (main ? d.commands.slice(1) : d.commands).map((c) => {
    if (!c.target) {  // a decorative strip
      return el('button', { type: 'button', className: 'tira', name: c.name, 'aria-label': c.name,
        onclick: () => press(c) }, el('img', { src: `img/${c.picture}.svg`, alt: '' }));
    }
    const id = `${d.name}-${c.name}`;
    const button = commandPicture({ ...c, toolTip: c.toolTip || c.caption }, press);
    button.setAttribute('aria-describedby', id);
    return el('div', { className: `opcion${c.enabled ? '' : ' apagada'}` },
      button, el('span', { id, textContent: c.caption, onclick: () => c.enabled && press(c) }));
  });
  return windowFrame(info, d.heading, press, head,
    el('div', { className: `opciones ${main ? 'principal' : 'seccion'}` }, choices));
}

// An entry screen: its text boxes report every change through `typed`, its
// selectors through `chosen`, its options and check boxes through `ticked`;
// `showFields` puts the fields on it.
export function entryScreen(info, d, fields, press, { typed, chosen, ticked }) {
  const id = (name) => `${d.name}-${name}`;
  // Every control at its place on its grid: the fields' grid, or the table's
  // (whose row -1 is the text above it).
  const place = (c) => (c.row >= 0 && c !== d.titleLabel && c !== d.titleField
    ? `grid-row: ${c.row + 1}; grid-column: ${c.column + 1}` : undefined);
  const draw = (c) => {
    switch (c.kind) {
      case 'textbox':
      case 'cell':
        return el('input', {
          type: 'text', id: id(c.name), name: c.name, className: c.kind, title: c.toolTip || undefined,
          autocomplete: 'off', spellcheck: false, style: place(c), hidden: !c.visible,
          'aria-label': c.kind === 'cell' ? c.toolTip || c.name : undefined,
          oninput: (e) => typed(c.name, e.target.value),
        });
      case 'selector':
        return el('select', {
          id: id(c.name), name: c.name, title: c.toolTip || undefined, style: place(c), hidden: !c.visible,
          onchange: (e) => chosen(c.name, e.target.selectedIndex, c.edit),
        }, c.items.map((item) => el('option', { textContent: item })));
      case 'listbox':  // a list shown open, however short
        return el('select', {
          id: id(c.name), name: c.name, className: 'lista', size: Math.max(2, c.items.length),
          title: c.toolTip || undefined, hidden: !c.visible,
          style: `${place(c)}; --lineas: ${Math.max(1, c.height)}; width: ${c.width || 64}px`,
          onchange: (e) => chosen(c.name, e.target.selectedIndex, c.edit),
        }, c.items.map((item) => el('option', { textContent: item })));
      case 'option':
      case 'check':
        return el('label', { className: c.kind, style: place(c), hidden: !c.visible, title: c.toolTip || undefined },
          el('input', {
            type: c.kind === 'option' ? 'radio' : 'checkbox', id: id(c.name), name: c.name,
            onchange: (e) => ticked(c.name, e.target.checked, c.edit),
          }), c.text);
      default:
        if (c.buddy) {
          return el('label', { htmlFor: id(c.buddy), name: c.name || undefined, textContent: c.text, style: place(c) });
        }
        return el(c.row < 0 ? 'p' : 'span', {
          className: c.row < 0 ? 'intro' : c.group === 0 ? 'texto' : c.row === 0 ? 'cabecera' : 'rotulo',
          name: c.name || undefined, textContent: c.text, style: place(c), hidden: !c.visible,
        });
    }
  };
  const group = (n) => d.controls.filter((c) => c.group === n).map(draw);
  const table = group(1);
  const cell = d.controls.find((c) => c.kind === 'cell' && c.width);
  const title = el('div', { className: 'titulo' }, draw(d.titleLabel), draw(d.titleField));
  // The commands that edit the fields (Rediseñar) stand beside them.
  const lastColumn = Math.max(1, ...d.controls.filter((c) => c.group === 0).map((c) => c.column));
  const edits = d.commands.filter((c) => c.action === 'edit').map((c, i) => el('button', {
    type: 'button', className: 'editar', name: c.name, title: c.toolTip || undefined, textContent: c.caption,
    style: `grid-row: ${i + 1} / span 2; grid-column: ${lastColumn + 2}`, onclick: () => press(c),
  }));
  const commands = el('div', { className: 'ordenes' },
    d.commands.filter((c) => c.action !== 'edit').map((c) => commandPicture(c, press, { captioned: true })));
  const screen = windowFrame(info, d.heading, press,
    d.intro && el('p', { className: 'intro', textContent: d.intro }), title,
    el('div', { className: 'campos' }, group(0), edits),
    table.filter((e) => e.tagName === 'P'),
    table.length > 0 && el('div', {
      className: 'tabla', role: 'group', style: cell ? `--celda: ${cell.width}px` : undefined,
    }, table.filter((e) => e.tagName !== 'P')),
    commands);
  showFields(screen, fields);
  return screen;
}

// A solution screen: the report box (painted by report.mjs), its browsing
// commands and Imprimir.
export function solutionScreen(info, d, press) {
  const report = d.controls.find((c) => c.kind === 'report');
  const box = el('div', {
    className: 'informe', name: report.name, role: 'document', tabIndex: 0,
    'aria-label': d.heading, 'data-columns': report.width, 'data-lines': report.height,
  });
  const commands = d.commands.map((c) => {
    const picture = commandPicture(c, press, { captioned: true });
    if (c.action === 'browse') {
      picture.classList.add('hojear');
      picture.hidden = !c.visible;
    }
    return picture;
  });
  // The window's commands as the description names them, where it has them.
  const frame = d.chrome.length ? { ...info, chrome: d.chrome } : info;
  return windowFrame(frame, d.heading, press, box, el('div', { className: 'ordenes' }, commands));
}

// Shows the browsing commands the solution offers.
export function showCommands(screenElement, shown) {
  for (const [name, visible] of Object.entries(shown ?? {})) {
    const button = screenElement.querySelector(`.ordenes button[name="${CSS.escape(name)}"]`);
    if (button) button.closest('.orden-rotulada').hidden = !visible;
  }
}

// Puts what each bound control shows on the screen: a text box's text, a
// control's visibility, a selector's choice, whether it is enabled, its
// tool-tip (after loading, nuevo, abrir, an edit).
export function showFields(screenElement, fields) {
  for (const [name, state] of Object.entries(fields)) {
    const control = screenElement.querySelector(`[name="${CSS.escape(name)}"]`);
    if (!control) continue;
    const isInput = control.tagName === 'INPUT' || control.tagName === 'SELECT';
    if ('text' in state) {
      if (isInput) control.value = state.text;
      else control.textContent = state.text;
    }
    if ('index' in state) control.selectedIndex = state.index;
    if ('checked' in state) control.checked = state.checked;
    // An option or check box shows and hides with its caption.
    const shown = control.type === 'radio' || control.type === 'checkbox' ? control.closest('label') : control;
    if ('visible' in state) shown.hidden = !state.visible;
    if ('enabled' in state) {
      if (isInput) control.disabled = !state.enabled;
      else control.classList.toggle('apagado', !state.enabled);  // a caption greys
    }
    if ('toolTip' in state) control.title = state.toolTip;
  }
}
