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
// selectors through `chosen`, its options and check boxes through `ticked`,
// the focus coming into a control with an edit of its own through `focused`;
// `showFields` puts the fields on it.
export function entryScreen(info, d, fields, press, { typed, chosen, ticked, focused }) {
  const id = (name) => `${d.name}-${name}`;
  // Every control at its place on its grid: the fields' grid, or a table's
  // (whose row -1 is the text above it), over the rows and columns it covers.
  const span = (n) => (n > 1 ? ` / span ${n}` : '');
  const place = (c) => (c.row >= 0 && c !== d.titleLabel && c !== d.titleField
    ? `grid-row: ${c.row + 1}${span(c.rowSpan)}; grid-column: ${c.column + 1}${span(c.columnSpan)}${
      c.rowSpan > 1 ? '; align-self: start' : ''}`
    : undefined);
  const at = (c) => (c.group >= 1
    ? { 'data-row': c.row, 'data-column': c.column, 'data-span': c.columnSpan > 1 ? c.columnSpan : undefined }
    : { 'data-span': c.columnSpan > 1 ? c.columnSpan : undefined });
  const onFocus = (c) => (c.focusEdit ? { onfocus: () => focused(c.focusEdit) } : {});
  const draw = (c) => {
    switch (c.kind) {
      case 'textbox':
      case 'cell':
        return el('input', {
          type: 'text', id: id(c.name), name: c.name, className: c.kind, title: c.toolTip || undefined,
          autocomplete: 'off', spellcheck: false, style: place(c), hidden: !c.visible, ...at(c),
          ...(c.locked ? { readOnly: true, tabIndex: -1 } : {}), ...onFocus(c),
          oninput: (e) => typed(c.name, e.target.value),
        });
      case 'selector':
        // A selector that holds its text takes what is typed in it too: a
        // box with its list.
        if (fields[c.name] && 'text' in fields[c.name] && !('index' in fields[c.name])) {
          const box = el('input', {
            type: 'text', id: id(c.name), name: c.name, className: 'combo',
            title: c.toolTip || undefined, autocomplete: 'off', spellcheck: false, hidden: !c.visible, ...at(c),
            style: [place(c), c.width && `width: ${c.width}px`].filter(Boolean).join('; ') || undefined,
            oninput: (e) => typed(c.name, e.target.value),
          });
          box.setAttribute('list', id(`${c.name}-lista`));
          return [box, el('datalist', { id: id(`${c.name}-lista`) }, c.items.map((item) => el('option', { value: item })))];
        }
        return el('select', {
          id: id(c.name), name: c.name, title: c.toolTip || undefined, hidden: !c.visible, ...at(c),
          style: [place(c), c.width && `width: ${c.width}px`].filter(Boolean).join('; ') || undefined,
          onchange: (e) => chosen(c.name, e.target.selectedIndex, c.edit),
        }, c.items.map((item) => el('option', { textContent: item })));
      case 'listbox':  // a list shown open, however short; a longer one scrolls
        return el('select', {
          id: id(c.name), name: c.name, className: 'lista', size: Math.max(2, c.height),
          title: c.toolTip || undefined, hidden: !c.visible, ...at(c), ...onFocus(c),
          style: `${place(c)}; --lineas: ${Math.max(1, c.height)}; width: ${c.width || 64}px`,
          onchange: (e) => chosen(c.name, e.target.selectedIndex, c.edit),
        }, c.items.map((item) => el('option', { textContent: item })));
      case 'option':
      case 'check':
        return el('label', { className: c.kind, style: place(c), hidden: !c.visible, title: c.toolTip || undefined, ...at(c) },
          el('input', {
            type: c.kind === 'option' ? 'radio' : 'checkbox', id: id(c.name), name: c.name,
            // An option ticked unticks the others of its family, as it shows.
            onchange: (e) => ticked(c.name, e.target.checked, c.edit, c.kind === 'option' && c.family
              ? d.controls.filter((o) => o.kind === 'option' && o.family === c.family && o !== c).map((o) => o.name)
              : []),
          }), c.text);
      case 'report':  // a panel a command prints lines on, its text bound to the fields
        return el('pre', {
          className: 'panel', name: c.name,
          style: `${place(c)}; order: ${c.row + 1}; min-width: ${c.width}ch; min-height: ${c.height * 1.15}em`,
          hidden: !c.visible,
        });
      default:
        if (c.buddy) {
          return el('label', {
            htmlFor: id(c.buddy), name: c.name || undefined, textContent: c.text, style: place(c), ...at(c),
          });
        }
        return el(c.row < 0 ? 'p' : 'span', {
          className: c.row < 0 ? 'intro' : c.group === 0 ? 'texto' : c.row === 0 ? 'cabecera' : 'rotulo',
          name: c.name || undefined, textContent: c.text, style: place(c), hidden: !c.visible, ...at(c),
          title: c.toolTip || undefined,
        });
    }
  };
  const group = (n) => d.controls.filter((c) => c.group === n).flatMap(draw);
  // Each table, the text above it first.
  const groups = [...new Set(d.controls.map((c) => c.group).filter((g) => g >= 1))].sort((a, b) => a - b);
  const tables = groups.map((g) => {
    const drawn = group(g);
    return [drawn.filter((e) => e.tagName === 'P'),
      el('div', { className: 'tabla', role: 'group', name: d.frames?.[g], ...tableColumns(d.controls.filter((c) => c.group === g)) },
        drawn.filter((e) => e.tagName !== 'P'))];
  });
  const title = el('div', { className: 'titulo' }, draw(d.titleLabel), draw(d.titleField));
  // The commands that edit the fields (Rediseñar) stand beside them.
  const lastColumn = Math.max(1, ...d.controls.filter((c) => c.group === 0).map((c) => c.column));
  const edits = d.commands.filter((c) => c.action === 'edit').map((c, i) => el('button', {
    type: 'button', className: 'editar', name: c.name, title: c.toolTip || undefined, textContent: c.caption,
    style: `grid-row: ${2 * i + 1} / span 2; grid-column: ${lastColumn + 2}; order: ${2 * i}`, onclick: () => press(c),
  }));
  const commands = el('div', { className: 'ordenes' },
    d.commands.filter((c) => c.action !== 'edit').map((c) => commandPicture(c, press, { captioned: true })));
  const screen = windowFrame(ownChrome(info, d), d.heading, press,
    d.intro && el('p', { className: 'intro', textContent: d.intro }), title,
    el('div', { className: 'campos' }, group(0), edits),
    d.tablesAcross ? el('div', { className: 'tablas' }, tables.map((t) => el('div', {}, ...t))) : tables.flat(2),
    commands);
  showFields(screen, fields);
  return screen;
}

// The widths of a table's columns: its cells' and single column heads'
// width; where these differ, each column takes its own.
function tableColumns(controls) {
  const sized = controls.filter((c) => c.width && c.columnSpan === 1
    && (c.kind === 'cell' || (c.kind === 'label' && c.row === 0)));
  if (sized.length === 0) return {};
  const widths = [];
  for (const c of sized) widths[c.column] = Math.max(widths[c.column] ?? 0, c.width);
  const given = widths.filter(Boolean);
  if (given.every((w) => w === given[0])) return { style: `--celda: ${given[0]}px` };
  // Columns of different widths: closeUpColumns sets them for the columns shown.
  return { 'data-widths': JSON.stringify(widths) };
}

// A solution screen: the report box (painted by report.mjs, or holding the
// cells its solution fills), its browsing commands and Imprimir.
export function solutionScreen(info, d, press) {
  const report = d.controls.find((c) => c.kind === 'report');
  const cells = d.controls.filter((c) => c.group >= 1);
  const box = el('div', {
    className: 'informe', name: report.name, role: 'document', tabIndex: 0,
    'aria-label': d.heading, 'data-columns': report.width, 'data-lines': report.height,
  }, cells.length ? solutionCells(cells) : null);
  const commands = d.commands.map((c) => {
    const picture = commandPicture(c, press, { captioned: true });
    if (c.action === 'browse' || c.action === 'show') {
      picture.classList.add('hojear');
      picture.hidden = !c.visible;
    }
    return picture;
  });
  // The description's labels (a chart's name) above the report.
  const labels = d.controls.filter((c) => c.kind === 'label')
    .map((c) => el('p', { className: 'rotulo-solucion', name: c.name, textContent: c.text }));
  return windowFrame(ownChrome(info, d), d.heading, press, ...labels, box,
    el('div', { className: 'ordenes' }, commands));
}

// The cells a solution fills (the records of material requirements), each at
// its place on the grid, and the labels over and beside them.
function solutionCells(controls) {
  const widths = [];
  for (const c of controls) {
    if (c.width && c.columnSpan === 1) widths[c.column] = Math.max(widths[c.column] ?? 0, c.width);
  }
  const place = (c) => `grid-row: ${c.row + 1}; grid-column: ${c.column + 1}${
    c.columnSpan > 1 ? ` / span ${c.columnSpan}` : ''}`;
  // A cell is read by the label of its row and the lowest head over its column.
  const labelAt = (row, column) => controls.find((o) => o.kind === 'label' && o.row === row
    && column >= o.column && column < o.column + o.columnSpan);
  const read = (c) => [labelAt(c.row, 0), labelAt(1, c.column) ?? labelAt(0, c.column)]
    .filter(Boolean).map((o) => o.text).join(', ') || c.name;
  return el('div', {
    className: 'tabla celdas', role: 'group',
    style: `grid-template-columns: ${[...widths].map((w) => (w ? `${w}px` : 'max-content')).join(' ')}`,
  }, controls.map((c) => (c.kind === 'cell'
    ? el('input', {
      type: 'text', name: c.name, className: 'cell', readOnly: true, title: c.toolTip || undefined,
      'aria-label': read(c), style: place(c), hidden: true,
    })
    : el('span', {
      className: c.row <= 1 ? 'cabecera' : 'rotulo', name: c.name || undefined, textContent: c.text,
      title: c.toolTip || undefined, style: place(c),
    }))));
}

// A solution's cells on its screen: each one's text and whether it shows;
// the report stays at hand for a copy.
export function showSolutionCells(box, solved) {
  for (const [name, state] of Object.entries(solved.cells)) {
    const control = box.querySelector(`[name="${CSS.escape(name)}"]`);
    if (!control) continue;
    if (control.tagName === 'INPUT') control.value = state.text;
    else control.textContent = state.text;
    control.hidden = !state.visible;
  }
  box.dataset.text = solved.text;
}

// The window's commands under the names the screen's description gives them
// ("Image5" for volver).
function ownChrome(info, d) {
  return d.chrome?.length ? { ...info, chrome: d.chrome } : info;
}

// Shows the browsing commands the solution offers, volver where it leads back
// only from some pages, and greys the window's commands a page withholds.
export function showCommands(screenElement, shown, offered) {
  for (const [name, visible] of Object.entries(shown ?? {})) {
    const button = screenElement.querySelector(`.ordenes button[name="${CSS.escape(name)}"]`);
    if (button) button.closest('.orden-rotulada').hidden = !visible;
    const window = screenElement.querySelector(`.ventana button[name="${CSS.escape(name)}"]`);
    if (window) window.hidden = !visible;
  }
  // The window's own commands a page withholds (volver) are greyed.
  for (const [name, available] of Object.entries(offered ?? {})) {
    const button = screenElement.querySelector(`.banda button[name="${CSS.escape(name)}"]`);
    if (button) button.disabled = !available;
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
    if ('items' in state) showItems(control, state.items);
    if ('index' in state) control.selectedIndex = state.index;
    if ('checked' in state) control.checked = state.checked;
    if ('color' in state) control.style.backgroundColor = state.color;
    if ('marked' in state) control.classList.toggle('marcada', state.marked);
    // An option or check box shows and hides with its caption.
    const shown = control.type === 'radio' || control.type === 'checkbox' ? control.closest('label') : control;
    if ('visible' in state) shown.hidden = !state.visible;
    if ('enabled' in state) {
      if (isInput) control.disabled = !state.enabled;
      else control.classList.toggle('apagado', !state.enabled);  // a caption greys
    }
    if ('toolTip' in state) control.title = state.toolTip;
  }
  for (const table of screenElement.querySelectorAll('.tabla')) closeUpColumns(table);
  nameCells(screenElement);
}

// A list's items as the fields give them (kept where they are the same).
function showItems(list, items) {
  const now = [...list.options].map((o) => o.textContent);
  if (now.length === items.length && now.every((text, i) => text === items[i])) return;
  list.replaceChildren(...items.map((item) => el('option', { textContent: item })));
}

// A table's columns with nothing shown take no room: the shown ones stand
// side by side, each control over the shown columns it covers.
function closeUpColumns(table) {
  const placed = [...table.children].filter((e) => e.dataset.column !== undefined);
  const covers = (e) => {
    const from = Number(e.dataset.column);
    return { from, to: from + Number(e.dataset.span ?? 1) - 1 };
  };
  const isShown = (e) => !e.hidden && !e.closest('[hidden]');
  const shown = new Set();
  for (const e of placed.filter(isShown)) {
    const { from, to } = covers(e);
    if (from === to) shown.add(from);
  }
  for (const e of placed.filter(isShown)) {  // a heading over columns of nothing shown keeps one
    const { from, to } = covers(e);
    if (![...shown].some((c) => c >= from && c <= to)) shown.add(from);
  }
  const order = [...shown].sort((x, y) => x - y);
  for (const e of placed) {
    const { from, to } = covers(e);
    const first = order.findIndex((c) => c >= from && c <= to);
    if (first < 0) continue;
    const count = order.filter((c) => c >= from && c <= to).length;
    e.style.gridColumn = count > 1 ? `${first + 1} / span ${count}` : String(first + 1);
  }
  if (table.dataset.widths) {
    const widths = JSON.parse(table.dataset.widths);
    table.style.gridTemplateColumns = order.map((c) => (widths[c] ? `${widths[c]}px` : 'max-content')).join(' ');
  }
}

// A table's cell is read by its headings: the row's, then the column's, as
// they stand (both may change with the fields); its tool-tip, where it has
// one, describes it.
function nameCells(screenElement) {
  for (const table of screenElement.querySelectorAll('.tabla')) {
    const heading = (row, column) => {
      const head = table.querySelector(`:scope > span[data-row="${row}"][data-column="${column}"]`);
      return head && !head.hidden ? head.textContent.trim() : '';
    };
    for (const cell of table.querySelectorAll('input.cell')) {
      const { row, column } = cell.dataset;
      const name = [heading(row, 0), heading(0, column)].filter(Boolean).join(', ');
      cell.setAttribute('aria-label', name || cell.title || cell.name);
    }
  }
}
