// Pads. The standard layout's buttons have the numbers of Linux and SDL 1.2, by which bind1.conf
// names them; a pad of another layout keeps its own.

const numbers = { 0: 0, 1: 1, 2: 2, 3: 3, 4: 4, 5: 5, 8: 6, 9: 7, 16: 8, 10: 9, 11: 10 };
const dPad = { up: 12, down: 13, left: 14, right: 15 };
const axisEnd = 32767;
const mostButtons = 16;
const mostAxes = 4;

const isDown = button => Boolean(button && button.pressed);

/** Position of an axis as SDL has it. The cross counts as the left stick pushed to its end. */
function axisOf(pad, axis) {
  const standard = pad.mapping === 'standard';
  const [low, high] = axis === 0 ? [dPad.left, dPad.right] : [dPad.up, dPad.down];
  const cross = standard && axis < 2 ? isDown(pad.buttons[high]) - isDown(pad.buttons[low]) : 0;
  return Math.round((cross || pad.axes[axis] || 0) * axisEnd);
}

/** @returns a function to be called before each pass. */
export function followPads(sendButton, sendAxis) {
  const buttons = new Array(mostButtons).fill(false);
  const axes = new Array(mostAxes).fill(0);

  return () => {
    const pads = navigator.getGamepads ? [...navigator.getGamepads()].filter(Boolean) : [];
    const pad = pads.find(each => each.connected !== false);
    for (let i = 0; i < mostAxes; ++i) {
      const position = pad ? axisOf(pad, i) : 0;
      if (position === axes[i]) continue;
      axes[i] = position;
      sendAxis(i, position);
    }
    const now = new Array(mostButtons).fill(false);
    if (pad)
      pad.buttons.forEach((button, i) => {
        const number = pad.mapping === 'standard' ? numbers[i] : i;
        if (number < mostButtons && isDown(button)) now[number] = true;
      });
    now.forEach((down, i) => {
      if (down !== buttons[i]) sendButton(i, down);
      buttons[i] = down;
    });
  };
}
