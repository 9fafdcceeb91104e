// The page's own frame clock in place of the display's: it runs at the highest rate of the movies that play, 60 at
// most, and goes on in a window that nobody sees.
'use strict';

const clock = (() => {
  const FASTEST = 60;
  let period = 1000 / FASTEST;
  let due = performance.now();
  let armed = false;
  let lastId = 0;
  let waiting = new Map();
  const after = [];

  function arm() {
    if (armed || (waiting.size === 0 && after.length === 0)) return;
    armed = true;
    setTimeout(tick, Math.max(0, due - performance.now()));
  }

  function tick() {
    armed = false;
    const now = performance.now();
    const due_now = [...waiting.values()];
    waiting = new Map();
    for (const callback of due_now) {
      try {
        callback(now);
      } catch (error) {
        console.error(String(error));
      }
    }
    for (const work of after.splice(0)) work();
    for (const look of clock.eachTick) look(now);
    due = Math.max(due + period, now);
    arm();
  }

  window.requestAnimationFrame = callback => {
    waiting.set(++lastId, callback);
    arm();
    return lastId;
  };
  window.cancelAnimationFrame = id => waiting.delete(id);

  // No movie is played with a gamepad: the first question for one would begin a thread that looks for them for ever.
  navigator.getGamepads = () => [];

  return {
    FASTEST,
    eachTick: [],
    // Once, behind the tick that follows: what the movies drew in it is on their canvases then.
    afterTick(work) {
      after.push(work);
      arm();
    },
    setRate(framesPerSecond) {
      period = 1000 / Math.min(Math.max(framesPerSecond, 1), FASTEST);
    },
  };
})();
