// The core built as WebAssembly: every check, computation, report and
// problem file of the program, behind the calls of web/api.h.
import createModule from '../vorel-web.js';


export async function loadCore() {
  const m = await createModule();
  const text = (name, ...args) =>
    m.ccall(name, 'string', args.map(() => 'string'), args);
  const json = (name, ...args) => JSON.parse(text(name, ...args));
  // Bytes into the module's memory for one call.
  const withBytes = (bytes, use) => {
    const at = m._malloc(Math.max(bytes.length, 1));
    try {
      m.HEAPU8.set(bytes, at);
      return use(at);
    } finally {
      m._free(at);
    }
  };
  return {
    tree: () => json('vorel_tree'),
    load: (screen) => json('vorel_load', screen),
    unload: (screen) => m.ccall('vorel_unload', null, ['string'], [screen]),
    set: (screen, control, value) =>
      m.ccall('vorel_set', 'number', ['string', 'string', 'string'], [screen, control, value]) === 1,
    setIndex: (screen, control, index) =>
      m.ccall('vorel_set_index', 'number', ['string', 'string', 'number'], [screen, control, index]) === 1,
    setChecked: (screen, control, checked) =>
      m.ccall('vorel_set_checked', 'number', ['string', 'string', 'number'],
        [screen, control, checked ? 1 : 0]) === 1,
    fields: (screen) => json('vorel_fields', screen),
    edit: (screen, name) => json('vorel_edit', screen, name),
    nuevo: (screen) => json('vorel_nuevo', screen),
    check: (screen) => json('vorel_check', screen),
    // A step budget of 0 sets no bound; see vorel_solve.
    solve: (screen, stepBudget = 0) =>
      JSON.parse(m.ccall('vorel_solve', 'string', ['string', 'number'], [screen, stepBudget])),
    // The activation of the solution screen `solution` of the entry `screen`.
    solveOn: (screen, solution, stepBudget = 0) =>
      JSON.parse(m.ccall('vorel_solve_on', 'string', ['string', 'string', 'number'],
        [screen, solution, stepBudget])),
    press: (screen, command) => json('vorel_press', screen, command),
    // abrir: the file's bytes as they are on disk (Windows-1252, CR LF).
    open: (screen, bytes) =>
      JSON.parse(withBytes(bytes, (at) =>
        m.ccall('vorel_open', 'string', ['string', 'number', 'number'], [screen, at, bytes.length]))),
    // guardar: the bytes the desktop writes.
    save(screen) {
      const at = m.ccall('vorel_save', 'number', ['string'], [screen]);
      return m.HEAPU8.slice(at, at + m._vorel_size());
    },
    // The report font's advances of the code points 0 to 255, in ems; gives
    // its average character width.
    metrics(widths) {
      const bytes = new Uint8Array(new Float32Array(widths).buffer);
      return withBytes(bytes, (at) => m._vorel_metrics(at));
    },
  };
}
