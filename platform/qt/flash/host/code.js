// The player's code is most of what a page waits for: it is fetched and made ready from the page's first moment on, beside
// all else that the page and its first movie need.
'use strict';

const code = (() => {
  const address = new URL(document.currentScript.dataset.file, location.href).href;
  const ready = new Promise((resolve, reject) => {
    const asked = new XMLHttpRequest();
    asked.open('GET', address);
    asked.responseType = 'arraybuffer';
    asked.onerror = () => reject(new TypeError('not there: ' + address));
    asked.onload = () => resolve(WebAssembly.compile(asked.response));
    asked.send();
  });

  // The player makes its code of what it fetches; what is ready already takes its place.
  WebAssembly.instantiateStreaming = async (fetched, imports) => {
    const module = await ready;
    return {module, instance: await WebAssembly.instantiate(module, imports)};
  };

  return {address};
})();
