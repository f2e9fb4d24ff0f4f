// A touch screen: the left half is a stick, a swipe on the right half fires, menus are tapped.

const axisEnd = 32767;
const stickReach = 45; // CSS pixels from the middle to the end
const deadZone = 0.2; // of that
const swipeLength = 24; // CSS pixels
const shortestTap = 80; // ms: a menu wants a tick or two

// Numbers of pad buttons, as bind1.conf has them.
const guns = { up: 3, down: 0, left: 2, right: 1 };
const pauseButton = 7, leaveButton = 6;

const axisOf = part => Math.round(Math.max(-1, Math.min(1, part)) * axisEnd);

function directionOf(dx, dy) {
  if (Math.abs(dx) > Math.abs(dy)) return dx > 0 ? 'right' : 'left';
  return dy > 0 ? 'down' : 'up';
}

/**
 * @param controls the element that shows them
 * @param isOurs whether touches are the game's
 */
export function followTouch(stage, controls, kov, isOurs, onPress) {
  const [stick, swipe] = ['stick', 'swipe'].map(id => controls.querySelector(`#${id}`));
  const knob = controls.querySelector('#knob');
  const canvas = stage.querySelector('canvas');
  const fingers = new Map(); // by pointer: where it is from, and what it does

  const press = button => {
    kov._kovButton(button, true);
    kov._kovButton(button, false);
  };
  const steer = (dx, dy) => {
    const length = Math.hypot(dx, dy) / stickReach;
    const [x, y] = length < deadZone ? [0, 0] : [dx / stickReach, dy / stickReach];
    kov._kovAxis(0, axisOf(x));
    kov._kovAxis(1, axisOf(y));
    const shown = 30 / Math.max(1, length) / stickReach;
    knob.setAttribute('transform', `translate(${dx * shown} ${dy * shown})`);
  };
  const touchMenu = (finger, down) => {
    const box = canvas.getBoundingClientRect();
    kov._kovTouchMenu((finger.x - box.left) / box.width, (finger.y - box.top) / box.height, down);
  };

  const begin = event => {
    const box = stage.getBoundingClientRect();
    const isLeft = event.clientX < box.left + box.width / 2;
    const taken = [...fingers.values()].some(finger => finger.does === 'steer');
    const does = !kov._kovIsPlaying() ? 'tap' : isLeft && !taken ? 'steer' : 'fire';
    const finger = { x: event.clientX, y: event.clientY, does, since: performance.now() };
    fingers.set(event.pointerId, finger);
    if (does === 'tap') touchMenu(finger, true);
    if (does !== 'steer') return;
    stick.classList.add('used', 'held');
    stick.style.left = `${event.clientX - box.left - stick.clientWidth / 2}px`;
    stick.style.top = `${event.clientY - box.top - stick.clientHeight / 2}px`;
    stick.style.bottom = 'auto';
  };
  const move = event => {
    const finger = fingers.get(event.pointerId);
    if (!finger) return;
    const dx = event.clientX - finger.x, dy = event.clientY - finger.y;
    if (finger.does === 'steer') steer(dx, dy);
    if (finger.does !== 'fire' || Math.hypot(dx, dy) < swipeLength) return;
    swipe.classList.add('used');
    press(guns[directionOf(dx, dy)]);
    fingers.set(event.pointerId, { ...finger, does: 'nothing' }); // a shot for each swipe
  };
  const end = event => {
    const finger = fingers.get(event.pointerId);
    if (!finger) return;
    fingers.delete(event.pointerId);
    if (finger.does === 'steer') {
      steer(0, 0);
      stick.classList.remove('held');
    }
    const lasted = performance.now() - finger.since;
    if (finger.does === 'tap')
      setTimeout(() => touchMenu(finger, false), Math.max(0, shortestTap - lasted));
  };

  const isControl = event => event.target.closest('button, a');
  stage.addEventListener('pointerdown', event => {
    if (event.pointerType === 'mouse' || isControl(event) || !isOurs()) return;
    controls.hidden = false;
    onPress();
    begin(event);
  });
  stage.addEventListener('pointermove', move);
  stage.addEventListener('pointerup', event => {
    if (event.pointerType !== 'mouse' && isOurs()) onPress(); // now it counts as a wish
    end(event);
  });
  stage.addEventListener('pointercancel', end);
  for (const [id, button] of [['pause', pauseButton], ['leave', leaveButton]])
    controls.querySelector(`#${id}`).addEventListener('click', () => {
      press(button);
      canvas.focus(); // for keys
    });
  controls.hidden = !matchMedia('(hover: none) and (pointer: coarse)').matches;
}
