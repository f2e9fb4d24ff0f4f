// A kept game that the player brings: named in the address, chosen, or dropped on the page. Each is
// `{ name, bytes }`; a refusal is an Error with a line to be shown.

const ending = '.kovreplay';
const largest = 64 << 20; // bytes, as everywhere
const unreadable = 'no such file, or none that can be read';

/** @param name of a file beside the page's: with a folder or a host in it there is none */
export async function fetchGame(name) {
  const refusal = new Error(`${name}: ${unreadable}`);
  if (!name.endsWith(ending) || /[/\\]/.test(name)) throw refusal;
  try {
    const answer = await fetch(new URL(encodeURIComponent(name), import.meta.url));
    if (!answer.ok) throw refusal;
    return { name, bytes: new Uint8Array(await answer.arrayBuffer()) };
  } catch {
    throw refusal;
  }
}

async function readGame(file) {
  try {
    if (file.size > largest) throw new Error('too large');
    return { name: file.name, bytes: new Uint8Array(await file.arrayBuffer()) };
  } catch {
    throw new Error(`${file.name}: ${unreadable}`);
  }
}

/**
 * @param button asks for a file by `input`
 * @param open called with a promise of a game
 */
export function followFiles(button, input, open) {
  button.addEventListener('click', () => input.click());
  input.addEventListener('change', () => {
    if (input.files.length > 0) open(readGame(input.files[0]));
    input.value = ''; // so that the same can be chosen again
  });
  const isFile = event => event.dataTransfer?.types.includes('Files');
  addEventListener('dragover', event => {
    if (isFile(event)) event.preventDefault();
  });
  addEventListener('drop', event => {
    if (!isFile(event)) return;
    event.preventDefault();
    if (event.dataTransfer.files.length > 0) open(readGame(event.dataTransfer.files[0]));
  });
}
