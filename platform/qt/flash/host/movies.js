// The movies of this page. The program calls place, put, set, silence, clear and end; what it is told goes out as lines
// on the console that begin with "@", each a list: ["up", slot, serial], ["bad", slot, serial, why], ["placed", slot],
// ["frames", [slot, serial, frame, ...]], ["panic", slot].
'use strict';

window.RufflePlayer = {
  config: {
    autoplay: 'on', unmuteOverlay: 'hidden', splashScreen: false, contextMenu: 'off', letterbox: 'off',
    forceScale: true, polyfills: false, preferredRenderer: 'canvas', maxExecutionDuration: 1, openUrlMode: 'deny',
    allowScriptAccess: true, allowNetworking: 'all', backgroundExecutionMode: 'mainThread', upgradeToHttps: false,
    compatibilityRules: false, warnOnUnsupportedContent: false, logLevel: 'error', publicPath: location.origin + '/',
  },
};

const movies = (() => {
  const TO_BEGIN = 2000;     // milliseconds from the header to the first frame, or there is none
  const TICKS_TO_BEGIN = 60; // and ticks as well: on a machine that is held up both take their time
  const SLOWEST_LOOK = 250;  // milliseconds between two questions to a movie that stands
  const TRIES = 50;          // of a call that is lost
  const slots = new Map();   // by number: {place, shown, coming}
  let frames = [];

  const tell = (...what) => console.info('@' + JSON.stringify(what));
  const slotOf = number => {
    if (!slots.has(number)) slots.set(number, {place: [0, 0, 1, 1], shown: null, coming: null});
    return slots.get(number);
  };
  const all = () => [...slots.values()].flatMap(slot => [slot.shown, slot.coming]).filter(Boolean);

  // Where nothing that is coming up has a sound there is no way to make one: it would keep a process and a thread at work
  // for nothing but silence, and the player would wait for them. It goes on without.
  const Sounding = window.AudioContext;
  window.AudioContext = function (...options) {
    if (!all().some(movie => movie.headerAt === 0 && movie.sounds)) throw new Error('no sound in it');
    return new Sounding(...options);
  };

  function layOut(movie, place) {
    const [x, y, width, height] = place;
    Object.assign(movie.element.style, {left: x + 'px', top: y + 'px', width: width + 'px', height: height + 'px'});
  }

  // A movie that is coming up waits for several ticks, which nobody wants to wait for.
  function setRate() {
    clock.setRate(Math.max(1, ...all().map(movie => (movie.up ? movie.rate : clock.FASTEST))));
  }

  function remove(movie) {
    if (!movie || movie.gone) return;
    movie.gone = true;
    for (const addresses of movie.drawn.values()) addresses.forEach(texts.forget);
    movie.element.remove();
    setRate();
  }

  // A movie is taken away while it comes up when its place is cleared, ends or goes over to the other page. An element that
  // goes before its player is made leaves it at work unseen; so it is taken away once more.
  function endLate(element) {
    document.body.appendChild(element);
    element.remove();
  }

  function ended(movie, why) {
    if (movie.gone) return;
    tell('bad', movie.slot, movie.serial, why);
    const slot = slotOf(movie.slot);
    if (slot.coming === movie) {
      slot.coming = null;
      goOn(slot.shown);
    }
    if (slot.shown === movie) slot.shown = null;
    remove(movie);
  }

  // It is over when the next one is put: the picture that it shows then stands until the next one's first, and not the
  // beginning of its next loop.
  function hold(movie) {
    if (!movie || movie.held) return;
    movie.held = true;
    movie.player.suspend();
  }

  function goOn(movie) {
    if (!movie || !movie.held) return;
    movie.held = false;
    movie.heard = performance.now();
    movie.player.resume();
  }

  function reached(movie, frame) {
    if (movie.gone) return;
    movie.heard = performance.now();
    movie.byClock = false;
    if (frame === movie.frame && (movie.script3 || frame === 1 && movie.frames === 1)) return;
    movie.frame = frame;
    frames.push(movie.slot, movie.serial, frame);
    if (!movie.up) begin(movie);
  }

  // The new movie takes the place of the old one when its first picture is drawn, both in one step.
  function begin(movie) {
    movie.up = true;
    clock.afterTick(() => {
      if (movie.gone) return;
      const slot = slotOf(movie.slot);
      const old = slot.shown;
      slot.shown = movie;
      slot.coming = null;
      movie.element.style.opacity = '1';
      remove(old);
      setRate();
      tell('up', movie.slot, movie.serial);
    });
  }

  function call(movie, ...what) {
    try {
      return movie.player.callExternalInterface(...what);
    } catch (error) {
      return undefined;
    }
  }

  // A call may be lost, and one from within a command of the movie always is; what was heard answers true.
  function callSurely(movie, tries, ...what) {
    if (movie.gone || tries === 0 || call(movie, ...what) === true) return;
    clock.afterTick(() => callSurely(movie, tries - 1, ...what));
  }

  const bare = name => name.replace(/^(_level[0O]|_root)[.:]|^\/:|^_levelO\//, '');

  const fieldsOf = (movie, root) => movie.fields.filter(one => bare(one.variable) === root);

  // What a movie is told of a text beside it, as variables of its root.
  function facts(root, value, field) {
    return [
      [root + '_width', String(texts.width(value, field.looks))],
      [root + '_rtl', texts.isRightToLeft(value) ? '1' : '0'],
    ];
  }

  async function setNow(movie, name, value) {
    const root = bare(name);
    if (movie.script3) return callSurely(movie, TRIES, 'set', root, value);
    const path = root.includes('.') || root.includes(':') || root.includes('/') ? root : '_level0.' + root;
    const fields = fieldsOf(movie, root);
    const isDrawn = fields.length > 0 && !texts.isPlain(value);
    const order = movie.orders.set(root, (movie.orders.get(root) || 0) + 1).get(root);
    if (value === '' || isDrawn) {
      callSurely(movie, TRIES, 'clear', path);
    } else {
      callSurely(movie, TRIES, 'set', path, value);
    }
    if (fields.length === 0) return;
    for (const [name, fact] of facts(path, value, fields[0])) callSurely(movie, TRIES, 'set', name, fact);
    if (!isDrawn && !movie.drawn.has(root)) return;
    const addresses = isDrawn ? await Promise.all(fields.map(field => texts.draw(value, field.looks))) : [];
    if (movie.gone || movie.orders.get(root) !== order) return addresses.forEach(texts.forget);
    (movie.drawn.get(root) || []).forEach(texts.forget);
    movie.drawn.set(root, addresses);
    fields.forEach((field, at) => {
      for (const clip of field.clips) callSurely(movie, TRIES, 'pic', clip + '.p', addresses[at] || '');
    });
  }

  function setWaiting(movie) {
    movie.ready = true;
    for (const [name, value] of movie.waiting.splice(0)) setNow(movie, name, value);
  }

  function command(movie, name, value) {
    if (name === 'frame') {
      const frame = Number(value);
      reached(movie, Number.isFinite(frame) && frame > 0 ? frame : 1);
    } else if (name === 'helper' && !movie.ready) {
      queueMicrotask(() => setWaiting(movie));
    }
  }

  // A movie whose scripts were turned off tells its frames no more. The helper knows where it stands, and where there is
  // none left either, the clock is the last resort.
  function lookAfter(movie, now) {
    if (!movie.up || movie.gone || movie.held || movie.frames < 2 || now - movie.heard < Math.max(2000 / movie.rate, 50)) return;
    if (now - movie.looked < movie.pause) return;
    movie.looked = now;
    const frame = movie.script3 || movie.byClock ? undefined : call(movie, 'cf');
    if (typeof frame === 'number') {
      movie.pause = frame === movie.frame ? Math.min(SLOWEST_LOOK, movie.pause * 2 + 10) : 0;
      if (frame === movie.frame) return;
      movie.frame = frame;
      frames.push(movie.slot, movie.serial, frame);
      return;
    }
    const passed = Math.floor((now - movie.heard) * movie.rate / 1000);
    if (passed < 1) return;
    movie.byClock = true;
    movie.heard += passed * 1000 / movie.rate;
    for (let i = Math.min(passed, movie.frames); i > 0; i--) {
      movie.frame = movie.frame % movie.frames + 1;
      frames.push(movie.slot, movie.serial, movie.frame);
    }
  }

  // A movie of which a part is missing gives neither a frame nor an error.
  function awaitBeginning(movie, now) {
    if (movie.up || movie.headerAt === 0 || ++movie.ticks < TICKS_TO_BEGIN) return;
    if (now - movie.headerAt > TO_BEGIN) ended(movie, 'no first frame');
  }

  clock.eachTick.push(now => {
    for (const movie of all()) {
      lookAfter(movie, now);
      awaitBeginning(movie, now);
    }
    if (frames.length > 0) tell('frames', frames);
    frames = [];
  });

  // A fault of the player in one movie stops all movies of the page; it shows itself in that movie's place.
  window.addEventListener('error', () => {
    const culprit = all().find(movie => movie.element.shadowRoot && movie.element.shadowRoot.querySelector('#panic'));
    if (culprit) tell('panic', culprit.slot);
  });

  return {
    place(number, x, y, width, height) {
      const slot = slotOf(number);
      slot.place = [x, y, width, height];
      for (const movie of [slot.shown, slot.coming]) if (movie) layOut(movie, slot.place);
      clock.afterTick(() => clock.afterTick(() => tell('placed', number)));
    },

    // about: serial, address, base, rate, frames, script3, sounds, fields, fit, back, silent, variables.
    put(number, about) {
      const slot = slotOf(number);
      remove(slot.coming);
      hold(slot.shown);
      const element = RufflePlayer.newest().createPlayer();
      const movie = Object.assign({}, about, {
        slot: number, element, player: null, up: false, gone: false, held: false, ready: false, frame: 0, byClock: false,
        heard: performance.now(), headerAt: 0, ticks: 0, looked: 0, pause: 0, waiting: [], drawn: new Map(), orders: new Map(),
      });
      const parameters = {};
      for (const [name, value] of about.variables) {
        const root = bare(name);
        const isStart = !movie.script3 && /^[\w$]+$/.test(root);
        const fields = fieldsOf(movie, root);
        if (isStart) parameters[root] = fields.length > 0 && !texts.isPlain(value) ? '' : value;
        if (isStart && fields.length > 0) Object.assign(parameters, Object.fromEntries(facts(root, value, fields[0])));
        movie.waiting.push([name, value]);  // again when it is up: the oldest versions take no text from a parameter
      }
      slot.coming = movie;
      element.style.opacity = '0';
      layOut(movie, slot.place);
      document.body.appendChild(element);
      movie.player = element.ruffle(1);
      element.shadowRoot.querySelector('#play-button').style.visibility = 'hidden';  // over a movie that is held
      movie.player.volume = about.silent ? 0 : 1;
      movie.player.addFSCommandHandler((name, value) => command(movie, name, value));
      element.addEventListener('loadedmetadata', () => {
        movie.headerAt = performance.now();
      });
      movie.player.load({
        url: about.address, base: about.base, parameters, scale: about.fit, wmode: about.back,
      }).catch(error => ended(movie, String(error))).then(() => {
        if (movie.gone) endLate(element);
      });
      setRate();
    },

    set(number, serial, name, value) {
      const slot = slotOf(number);
      const movie = [slot.coming, slot.shown].find(one => one && one.serial === serial);
      if (!movie) return;
      if (movie.ready) setNow(movie, name, value);
      else movie.waiting.push([name, value]);
    },

    silence(number, silent) {
      const slot = slotOf(number);
      for (const movie of [slot.shown, slot.coming]) if (movie) movie.player.volume = silent ? 0 : 1;
    },

    clear(number) {
      const slot = slotOf(number);
      remove(slot.coming);
      remove(slot.shown);
      slot.coming = slot.shown = null;
    },

    end(number) {
      this.clear(number);
      slots.delete(number);
    },
  };
})();

window.addEventListener('load', () => console.info('@["ready"]'));
