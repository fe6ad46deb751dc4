// Small helpers to build the page's elements.

// An element with attributes, properties (`on*` handlers, `className`,
// `textContent`, ...) and children.
export function el(tag, props = {}, ...children) {
  const node = document.createElement(tag);
  for (const [key, value] of Object.entries(props)) {
    if (value === undefined || value === null || value === false) continue;
    if (key.startsWith('on')) node.addEventListener(key.slice(2), value);
    else if (key in node && !key.includes('-')) node[key] = value;
    else node.setAttribute(key, value === true ? '' : value);
  }
  for (const child of children.flat()) if (child) node.append(child);
  return node;
}

// A picture that acts as a command, with its tool-tip and, where given, its
// caption below it.
export function commandPicture(command, onPress, { captioned = false } = {}) {
  const button = el('button', {
    type: 'button',
    className: 'orden',
    name: command.name,
    title: command.toolTip || undefined,
    'aria-label': command.toolTip || command.caption || command.name,
    disabled: !command.enabled,
    onclick: () => onPress(command),
  }, el('img', { src: `img/${command.picture}.svg`, alt: '', width: command.size, height: command.size }));
  if (!captioned) return button;
  return el('div', { className: 'orden-rotulada' }, button, el('span', { textContent: command.toolTip }));
}
