// The list of kept games, and whether there are to be more.

const key = 'kov-keeps-games';

/** What the player has chosen: yes, as long as nothing is. */
export function keepsGames() {
  try {
    return localStorage.getItem(key) !== 'no';
  } catch {
    return true;
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
  button.textContent = keepsGames() ? "Don't keep my games" : 'Keep my games';
  button.addEventListener('click', () => choose(!keepsGames()));
}
