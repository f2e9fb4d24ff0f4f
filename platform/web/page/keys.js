// The keyboard. Keys have SDL's symbols: that of their unshifted character, else of their name.

const named = {
  Backspace: 8, Tab: 9, Enter: 13, Pause: 19, Escape: 27, Space: 32, Delete: 127,
  NumpadDecimal: 266, NumpadDivide: 267, NumpadMultiply: 268, NumpadSubtract: 269,
  NumpadAdd: 270, NumpadEnter: 271, NumpadEqual: 272,
  ArrowUp: 273, ArrowDown: 274, ArrowRight: 275, ArrowLeft: 276,
  Insert: 277, Home: 278, End: 279, PageUp: 280, PageDown: 281,
  NumLock: 300, CapsLock: 301, ScrollLock: 302, ShiftRight: 303, ShiftLeft: 304,
  ControlRight: 305, ControlLeft: 306, AltRight: 307, AltLeft: 308,
  MetaRight: 309, MetaLeft: 310, PrintScreen: 316, ContextMenu: 319,
};
for (let i = 0; i < 10; ++i) named[`Numpad${i}`] = 256 + i;
for (let i = 1; i <= 15; ++i) named[`F${i}`] = 281 + i;

// What a key of a US keyboard says unshifted, for a character that was typed with Shift.
const unshifted = {
  Backquote: '`', Minus: '-', Equal: '=', BracketLeft: '[', BracketRight: ']', Backslash: '\\',
  Semicolon: ';', Quote: "'", Comma: ',', Period: '.', Slash: '/', IntlBackslash: '<',
};
for (let i = 0; i < 10; ++i) unshifted[`Digit${i}`] = String(i);

// The browser's own, which the game never sees.
const keptByBrowser = new Set(['Tab', 'F5', 'F11', 'F12']);

const largestCharacter = 255; // SDL's symbols for characters are those of Latin 1

export function symbolOf(event) {
  if (event.code in named) return named[event.code];
  let character = [...event.key].length === 1 ? event.key.toLowerCase() : '';
  if (event.shiftKey && !/\p{Letter}/u.test(character))
    character = unshifted[event.code] || character;
  const symbol = character ? character.codePointAt(0) : 0;
  return symbol <= largestCharacter ? symbol : 0;
}

/** Sends keys to `send(symbol, down)` while `isOurs()`, and calls `onFirst` at each press. */
export function followKeys(send, isOurs, onPress) {
  const held = new Map(); // symbols by the key's place, as Shift may change meanwhile

  addEventListener('keydown', event => {
    const symbol = symbolOf(event);
    const shortcut = (event.ctrlKey || event.metaKey || event.altKey) && symbol < named.ShiftRight;
    if (!isOurs() || shortcut || keptByBrowser.has(event.code) || symbol === 0) return;
    event.preventDefault();
    onPress();
    if (event.repeat || held.has(event.code)) return;
    held.set(event.code, symbol);
    send(symbol, true);
  });

  const release = code => {
    if (!held.has(code)) return;
    send(held.get(code), false);
    held.delete(code);
  };
  addEventListener('keyup', event => release(event.code));
  // Nobody tells of keys that are released elsewhere.
  addEventListener('blur', () => [...held.keys()].forEach(release));
}
