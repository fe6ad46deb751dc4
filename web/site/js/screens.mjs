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

// An entry screen: its text boxes report every change through `typed`.
export function entryScreen(info, d, fields, press, typed) {
  const box = (c) => el('input', {
    type: 'text', id: `${d.name}-${c.name}`, name: c.name, value: fields[c.name] ?? '',
    title: c.toolTip || undefined, autocomplete: 'off', spellcheck: false,
    oninput: (e) => typed(c.name, e.target.value),
  });
  const caption = (c) => el('label', { htmlFor: `${d.name}-${c.buddy}`, textContent: c.text });
  const grid = el('div', { className: 'campos' },
    d.controls.map((c) => (c.kind === 'textbox' ? box(c) : caption(c))));
  const title = el('div', { className: 'titulo' }, caption(d.titleLabel), box(d.titleField));
  const commands = el('div', { className: 'ordenes' },
    d.commands.map((c) => commandPicture(c, press, { captioned: true })));
  return windowFrame(info, d.heading, press,
    d.intro && el('p', { className: 'intro', textContent: d.intro }), title, grid, commands);
}

// A solution screen: the report box (painted by report.mjs) and Imprimir.
export function solutionScreen(info, d, press) {
  const report = d.controls.find((c) => c.kind === 'report');
  const box = el('div', {
    className: 'informe', name: report.name, role: 'document', tabIndex: 0,
    'aria-label': d.heading, 'data-columns': report.width, 'data-lines': report.height,
  });
  return windowFrame(info, d.heading, press, box,
    el('div', { className: 'ordenes' }, d.commands.map((c) => commandPicture(c, press, { captioned: true }))));
}

// Writes the fields' texts back into their boxes (after nuevo or abrir).
export function showFields(screenElement, fields) {
  for (const [name, value] of Object.entries(fields)) {
    const input = screenElement.querySelector(`input[name="${CSS.escape(name)}"]`);
    if (input) input.value = value;
  }
}
