// The list of kept games, and whether there are to be more.

const key = 'kov-keeps-games';

/** What the player has chosen; no, where the browser keeps no choices. */
export function keepsGames() {
  try {
    return localStorage.getItem(key) === 'yes';
  } catch {
    return false;
  }
}

function choose(keeps) {
  try {
    localStorage.setItem(key, keeps ? 'yes' : 'no');
  } catch {
    return;
  }
  location.reload(); // a game is kept from the program's start
}

function itemOf(files, name) {
  const item = document.createElement('li');
  const link = document.createElement('a');
  const fileName = name.split('/').pop();
  link.textContent = fileName;
  link.download = fileName;
  link.href = URL.createObjectURL(new Blob([files.stored.get(name)]));
  const remove = document.createElement('button');
  remove.type = 'button';
  remove.textContent = 'Delete';
  remove.addEventListener('click', async () => {
    await files.remove(name);
    item.remove();
  });
  item.append(link, remove);
  return item;
}

export function showGames(files, list, button) {
  list.replaceChildren(...files.games().map(name => itemOf(files, name)));
  button.hidden = !files.db;
  button.textContent = keepsGames() ? 'Stop keeping my games' : 'Keep my games';
  button.addEventListener('click', () => choose(!keepsGames()));
}
