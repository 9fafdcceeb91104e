// All that the player asks for: its own parts, the movies that the station has put, pictures of texts that were drawn
// here. Nothing else is answered: a movie reaches no network and no other file.
'use strict';

const drawn = new Map();  // pictures of texts, by address

window.fetch = (request, options) => new Promise((resolve, reject) => {
  const address = request instanceof Request ? request.url : new URL(String(request), location.href).href;
  const answer = (body, type) => {
    const response = new Response(body, {status: 200, headers: {'Content-Type': type}});
    Object.defineProperty(response, 'url', {value: address});
    resolve(response);
  };
  if (address === code.address) return answer(new Uint8Array(), 'application/wasm');
  if (drawn.has(address)) return answer(drawn.get(address), 'image/png');
  if (!address.startsWith(location.origin + '/')) return reject(new TypeError('not of the station: ' + address));
  const asked = new XMLHttpRequest();
  asked.open('GET', address);
  asked.responseType = 'arraybuffer';
  asked.onerror = () => reject(new TypeError('not there: ' + address));
  asked.onload = () => {
    const give = () => answer(asked.response, asked.getResponseHeader('Content-Type') || 'application/octet-stream');
    // The player takes the first tick that follows a movie for one since the beginning of time, and would run several
    // frames at once.
    if (address.includes('/movie/')) {
      clock.afterTick(give);
    } else {
      give();
    }
  };
  asked.send();
});
