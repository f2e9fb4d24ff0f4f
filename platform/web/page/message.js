// What the page says: in place of the picture, or in a line below it.

const element = id => document.getElementById(id);

/** @param again whether to offer a new start */
export function say(text, again = false) {
  element('text').textContent = text;
  element('again').hidden = !again;
  element('message').hidden = false;
}

export function unsay() {
  element('message').hidden = true;
}

export function note(text) {
  element('note').textContent = text;
}
