// The desk: one instance of each screen, shown, hidden or unloaded by name as
// on the desktop. The page shows the screen shown last that is still visible;
// minimised screens wait in the bar below. The core keeps each loaded entry
// screen's fields.
import { el } from './dom.mjs';
import { messageBox, showHelp } from './dialogs.mjs';
import { paintReport, clearReport, gatherPage, printGathered, gathered } from './report.mjs';
import {
  startScreen, menuScreen, entryScreen, solutionScreen, showFields, showCommands, showSolutionCells,
} from './screens.mjs';
import { chartSvg } from './chart.mjs';

const START_MS = 2000;
// A method that may never end runs in slices: this many steps first, twice as
// many each time (up to the longest, and while a slice takes under SLICE_MS),
// the page handling its events between them.
const FIRST_SLICE = 1 << 12;
const LONGEST_SLICE = 1 << 21;
const SLICE_MS = 30;

export class Desk {
  constructor(core, { desk, bar, printView, filePicker, averageEm }) {
    this.core = core;
    this.tree = core.tree();
    this.info = new Map(this.tree.screens.map((s) => [s.name, s]));
    this.places = { desk, bar, printView, filePicker };
    this.averageEm = averageEm;
    this.loaded = new Map();  // name -> { element, pages }
    this.visible = [];        // shown and not hidden, the last on top
    this.minimised = new Set();
  }

  // AInicio for two seconds, then the main menu.
  start() {
    this.show('AInicio');
    this.startTimer = setTimeout(() => {
      this.hide('AInicio');
      this.show('APrincipal');
    }, START_MS);
  }

  // -- the screens' lifecycle ------------------------------------------------

  load(name) {
    if (this.loaded.has(name)) return this.loaded.get(name);
    const info = this.info.get(name);
    if (!info) return null;
    const press = (command) => this.run(() => this.press(name, command));
    let element;
    if (info.kind === 'start') element = startScreen(info, this.tree.start);
    else if (info.kind === 'main' || info.kind === 'section') element = menuScreen(info, this.tree.menus[name], press);
    else if (info.kind === 'entry') {
      const form = this.core.load(name);
      if (form.error) return null;
      element = entryScreen(info, form.entry, form.fields, press, {
        typed: (control, text) => this.core.set(name, control, text),
        chosen: (control, index, edit) => this.run(() => this.choose(name, control, index, edit)),
        ticked: (control, checked, edit, unticked) =>
          this.run(() => this.tick(name, control, checked, edit, unticked)),
        focused: (edit) => this.run(() => this.runEdit(name, edit)),
      });
      this.loaded.set(name, {
        element, solutions: form.solutions, arrival: form.entry.activate, nuevoFocus: form.entry.nuevoFocus,
      });
      return this.loaded.get(name);
    } else if (info.kind === 'solution') {
      const entry = this.load(info.entry);
      if (!entry) return null;
      element = solutionScreen(info, entry.solutions[name], press);
    } else return null;
    this.loaded.set(name, { element });
    return this.loaded.get(name);
  }

  show(name) {
    const screen = this.load(name);
    if (!screen) return;
    performance.mark(`vorel:${name}`);  // when each screen came on view, for the figures
    this.minimised.delete(name);
    this.visible = this.visible.filter((n) => n !== name).concat(name);
    this.render();
    this.activate(name);
  }

  hide(name) {
    this.visible = this.visible.filter((n) => n !== name);
    this.minimised.delete(name);
    this.render();
  }

  unload(name) {
    this.hide(name);
    if (this.info.get(name)?.kind === 'entry') this.core.unload(name);
    this.loaded.delete(name);
    this.render();
  }

  // Leaving the app: every screen goes, and the page says so.
  end() {
    clearTimeout(this.startTimer);
    printGathered(this.places.printView);
    for (const name of [...this.loaded.keys()]) this.unload(name);
    this.render();
  }

  // A run-time error: its box, then the app starts again from the start screen.
  async runtimeError(error) {
    await messageBox(error.title, error.text, { kind: 'fatal' });
    this.end();
    this.start();
  }

  // Runs a command; a run-time error reported by the core ends it.
  async run(command) {
    try {
      await command();
    } catch (error) {
      if (error.runtime) await this.runtimeError(error.runtime);
      else throw error;
    }
  }

  // Form_Activate: an entry screen may edit its fields; a solution screen
  // computes and paints afresh; a method
  // that may never end runs in slices, and while it runs only minimizar and
  // cerrar act.
  async activate(name) {
    const info = this.info.get(name);
    // An entry screen runs its edit of arrival, where it has one.
    if (info.kind === 'entry' && this.loaded.get(name).arrival) {
      await this.run(() => this.runEdit(name, this.loaded.get(name).arrival));
      return;
    }
    // An entry screen shows its fields as the core holds them: a solution
    // may have changed them (the samples a control chart takes out).
    if (info.kind === 'entry') {
      this.showFields(name, this.core.fields(name));
      return;
    }
    if (info.kind !== 'solution') return;
    const screen = this.loaded.get(name);
    clearReport(screen.element.querySelector('.informe'));
    screen.element.querySelector('.grafico')?.remove();
    const locked = [...screen.element.querySelectorAll('button')]
      .filter((b) => !['minimizar', 'cerrar'].includes(b.name) && !b.disabled);
    let solved;
    for (let budget = FIRST_SLICE, took = 0; ;
      budget = took < SLICE_MS ? Math.min(budget * 2, LONGEST_SLICE) : budget) {
      const started = performance.now();
      solved = this.core.solveOn(info.entry, name, budget);
      took = performance.now() - started;
      if (!solved.doesNotEnd) break;
      for (const b of locked) b.disabled = true;
      await new Promise((go) => { setTimeout(go, 0); });
      if (this.loaded.get(name) !== screen) return;  // closed meanwhile
    }
    for (const b of locked) b.disabled = false;
    if (solved.error) {
      this.runtimeError(solved.error);
      return;
    }
    if (solved.refused) {
      // The method gave no solution: its messages, then back to the entry.
      for (const message of solved.refused) await messageBox(this.tree.errorTitle, message.text);
      this.show(info.entry);
      this.hide(name);
      return;
    }
    this.showSolution(name, solved);
  }

  // A solution on its screen: the report, the chart, the browsing commands.
  showSolution(name, solved) {
    const screen = this.loaded.get(name);
    screen.pages = solved;
    if (solved.cells) showSolutionCells(screen.element.querySelector('.informe'), solved);
    else paintReport(screen.element.querySelector('.informe'), solved, this.averageEm);
    showCommands(screen.element, solved.commands, solved.offered);
    screen.element.querySelector('.grafico')?.remove();
    if (solved.chart) {
      screen.element.querySelector('.informe').after(
        el('figure', { className: 'grafico' }, chartSvg(solved.chart)));
    }
  }

  render() {
    const top = [...this.visible].reverse().find((n) => !this.minimised.has(n));
    const { desk, bar } = this.places;
    const shown = top ? this.loaded.get(top).element : this.emptyDesk();
    if (desk.firstElementChild !== shown) desk.replaceChildren(shown);
    bar.replaceChildren(...this.gatheredButton(), ...[...this.minimised].map((name) => el('button', {
      type: 'button',
      className: 'minimizada',
      name,
      textContent: this.info.get(name).caption.trim() || name,
      onclick: () => this.restore(name),
    })));
    document.title = top ? `${this.info.get(top).caption.trim() || 'Vorel'} · Vorel` : 'Vorel';
  }

  // No window on view: the minimised ones wait in the bar; with none, the app
  // is closed and can be opened again.
  emptyDesk() {
    if (this.minimised.size) return el('div', { className: 'vacio' });
    return el('div', { className: 'vacio' },
      el('p', { textContent: 'Vorel está cerrado.' }),
      el('button', {
        type: 'button', className: 'aceptar', textContent: 'Abrir Vorel', onclick: () => this.start(),
      }));
  }

  // A minimised screen back on top, as it was.
  restore(name) {
    this.minimised.delete(name);
    this.visible = this.visible.filter((n) => n !== name).concat(name);
    this.render();
  }

  // -- commands --------------------------------------------------------------

  async press(name, command) {
    const info = this.info.get(name);
    switch (command.action) {
      case 'show':  // a menu's picture: the main menu hides first, section menus show first
        if (command.hides === 'APrincipal') this.hide(command.hides);
        if (command.target) this.show(command.target);
        if (command.hides !== 'APrincipal') this.hide(command.hides);
        return;
      case 'ayuda': return showHelp(info.help, this.tree.helpTitle);
      case 'gohome': this.show('APrincipal'); return this.hide(name);
      case 'volver': this.show(info.volver); return this.hide(name);
      case 'minimizar': this.minimised.add(name); return this.render();
      case 'cerrar': return info.cerrar === 'end' ? this.end() : this.unload(name);
      case 'nuevo': return this.nuevo(name);
      case 'abrir': return this.abrir(name);
      case 'guardar': return this.guardar(name);
      case 'resolver': return this.resolver(name, info);
      case 'imprimir': return this.imprimir(name);
      case 'edit': return this.editCommand(name, command.target);
      case 'browse': return this.browse(name, info, command.name);
      default: return undefined;
    }
  }

  // nuevo: the fields as the model empties them, the focus where it leaves it.
  nuevo(name) {
    this.showFields(name, this.core.nuevo(name));
    const { element, nuevoFocus } = this.loaded.get(name);
    if (nuevoFocus) element.querySelector(`[name="${CSS.escape(nuevoFocus)}"]`)?.focus();
  }

  // A selector's click: the choice, then the edit it runs on the fields.
  // A selector that holds its text rather than its index takes the item's text.
  async choose(name, control, index, edit) {
    if (!this.core.setIndex(name, control, index)) {
      const list = this.loaded.get(name).element.querySelector(`select[name="${CSS.escape(control)}"]`);
      this.core.set(name, control, list.options[index]?.textContent ?? '');
    }
    if (edit) await this.runEdit(name, edit);
  }

  // An option's or a check box's click: the tick (an option's family loses
  // theirs), then its edit.
  async tick(name, control, checked, edit, unticked = []) {
    for (const other of unticked) this.core.setChecked(name, other, false);
    this.core.setChecked(name, control, checked);
    if (edit) await this.runEdit(name, edit);
  }

  async runEdit(name, edit) {
    const answer = this.core.edit(name, edit);
    if (answer.error) throw { runtime: answer.error };
    // What the edit did shows even where it tells a message (a command that
    // refuses a game hides its panels).
    this.showFields(name, answer.fields);
    await this.tell(name, answer.messages);
    return answer.messages.length === 0;
  }

  // Rediseñar: the edit, then the focus in the table's first shown cell.
  async editCommand(name, edit) {
    if (!(await this.runEdit(name, edit))) return;
    const cells = this.loaded.get(name).element.querySelectorAll('.tabla input.cell');
    [...cells].find((cell) => !cell.hidden && !cell.readOnly)?.focus();
  }

  // A browsing command: the solution's next page.
  browse(name, info, command) {
    const solved = this.core.press(info.entry, command);
    if (solved.error?.number) throw { runtime: solved.error };
    if (!solved.error) this.showSolution(name, solved);
  }

  // Each message in turn, focus on its control.
  async tell(name, messages) {
    const element = this.loaded.get(name).element;
    for (const message of messages) {
      if (message.focus) element.querySelector(`[name="${CSS.escape(message.focus)}"]`)?.focus();
      await messageBox(this.tree.errorTitle, message.text);
    }
  }

  showFields(name, fields) {
    showFields(this.loaded.get(name).element, fields);
  }

  // Resolver: every message of the checks in turn, focus on its control;
  // with none, the solution screen.
  async resolver(name, info) {
    const answer = this.core.check(name);
    if (answer.error) throw { runtime: answer.error };
    await this.tell(name, answer.messages);
    if (answer.messages.length) return;
    const { solution } = answer;
    if (!info.stays) this.hide(name);
    this.show(solution);
  }

  // abrir: the browser's file picker; the file is read as it is on disk.
  // Cancel, or a file that cannot be read, ends silently.
  abrir(name) {
    const picker = this.places.filePicker;
    picker.value = '';
    this.reading = new Promise((done) => {
      picker.onchange = async () => {
        const file = picker.files[0];
        if (file) this.showFields(name, this.core.open(name, new Uint8Array(await file.arrayBuffer())));
        done();
      };
    });
    picker.click();
  }

  // guardar: the file the desktop writes, offered as a download named after
  // the problem's title.
  guardar(name) {
    const bytes = this.core.save(name);
    const title = this.loaded.get(name).element.querySelector('.titulo input').value;
    const link = el('a', {
      href: URL.createObjectURL(new Blob([bytes], { type: 'application/octet-stream' })),
      download: title || 'Problema',
    });
    link.click();
    setTimeout(() => URL.revokeObjectURL(link.href), 10000);
  }

  // Imprimir gathers the page; a chart's page ends the document, which then
  // prints. The bar offers what is gathered until the student prints it, and
  // leaving the app prints it, as ending the desktop program does.
  imprimir(name) {
    const { pages, element } = this.loaded.get(name);
    if (!pages) return;
    // The chart on view becomes the one the page keeps, as on paper.
    if (pages.pageChart) element.querySelector('.grafico')?.replaceChildren(chartSvg(pages.pageChart));
    if (gatherPage(this.places.printView, pages)) this.printGathered();
    else this.render();
  }

  printGathered() {
    printGathered(this.places.printView);
    this.render();
  }

  gatheredButton() {
    const count = gathered(this.places.printView);
    if (!count) return [];
    return [el('button', {
      type: 'button',
      className: 'reunidas',
      name: 'imprimirReunidas',
      textContent: count === 1 ? 'Imprimir 1 página reunida' : `Imprimir ${count} páginas reunidas`,
      title: 'Las páginas de Imprimir se reúnen hasta que se imprimen juntas',
      onclick: () => this.printGathered(),
    })];
  }
}
