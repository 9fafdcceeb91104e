// Texts whose letters the player cannot join are drawn here, with the system's fonts, and put in the place of the field.
'use strict';

const texts = (() => {
  // Latin, Greek, Cyrillic and their signs: the player sets these itself.
  const PLAIN = /^[\u0000-\u024F\u0370-\u052F\u1E00-\u1FFF\u2000-\u206F\u20A0-\u20BF\u2100-\u214F]*$/;
  // The first letter that has a direction gives it to its paragraph; a mark of direction stands for a letter.
  const FIRST_STRONG = /[\p{L}\u200E\u200F\u061C]/u;
  const LEFTWARDS = /[\u0590-\u08FF\u200F\uFB1D-\uFDFF\uFE70-\uFEFF\u{10800}-\u{10FFF}\u{1E800}-\u{1EFFF}]/u;
  const TWIPS = 20;
  const LARGEST = 8192;
  let count = 0;
  let measuring = null;

  function colour(looks) {
    const parts = [24, 16, 8].map(shift => (looks.colour >>> shift) & 255);
    return `rgba(${parts.join(',')},${(looks.colour & 255) / 255})`;
  }

  function isRightToLeft(text) {
    const first = FIRST_STRONG.exec(text);
    return first !== null && LEFTWARDS.test(first[0]);
  }

  // The direction of the paragraph: by it stand words of another script, numbers and full stops.
  function setDirection(context, text) {
    context.direction = isRightToLeft(text) ? 'rtl' : 'ltr';
  }

  // Each line with its paragraph.
  function lines(context, text, looks, width) {
    if (!looks.multiline) return [[text.replace(/[\r\n]+/g, ' '), text]];
    const all = [];
    for (const paragraph of text.split(/\r\n|\r|\n/)) {
      let line = '';
      setDirection(context, paragraph);
      for (const word of paragraph.split(' ')) {
        const longer = line ? line + ' ' + word : word;
        if (line && context.measureText(longer).width > width) {
          all.push([line, paragraph]);
          line = word;
        } else {
          line = longer;
        }
      }
      all.push([line, paragraph]);
    }
    return all;
  }

  function setFont(context, looks) {
    context.font = `${looks.fontHeight / TWIPS}px sans-serif`;
  }

  return {
    isPlain: text => PLAIN.test(text),
    isRightToLeft,

    // How far the text reaches in one line, in pixels.
    width(text, looks) {
      measuring = measuring || document.createElement('canvas').getContext('2d');
      setFont(measuring, looks);
      setDirection(measuring, text);
      return Math.ceil(measuring.measureText(text).width);
    },

    // The address under which `fetch` answers with the picture: as large as the field, its left top corner there.
    async draw(text, looks) {
      const canvas = document.createElement('canvas');
      const right = (looks.left + looks.width) / TWIPS;
      const bottom = (looks.top + looks.height) / TWIPS;
      canvas.width = Math.min(LARGEST, Math.max(1, Math.ceil(right)));
      canvas.height = Math.min(LARGEST, Math.max(1, Math.ceil(bottom)));
      const context = canvas.getContext('2d');
      const size = looks.fontHeight / TWIPS;
      setFont(context, looks);
      context.fillStyle = colour(looks);
      context.textBaseline = 'alphabetic';
      const left = (looks.left + looks.leftMargin) / TWIPS + 2;
      const room = right - looks.rightMargin / TWIPS - 2 - left;
      const places = {1: ['right', left + room], 2: ['center', left + room / 2]};
      const [align, x] = places[looks.align] || ['left', left];
      context.textAlign = align;
      let y = looks.top / TWIPS + 2 + size;
      for (const [line, paragraph] of lines(context, text, looks, room)) {
        setDirection(context, paragraph);
        context.fillText(line, x, y);
        y += size * 1.2;
      }
      const picture = await new Promise(resolve => canvas.toBlob(resolve, 'image/png'));
      const address = `${location.origin}/text/${++count}.png`;
      drawn.set(address, await picture.arrayBuffer());
      return address;
    },
    forget: address => drawn.delete(address),
  };
})();
