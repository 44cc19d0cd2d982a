// Replays a chart's command list (see web/CanvasFlaeche.h) on a canvas, in the chart's own pixel
// coordinates; the canvas may be larger by `massstab` for a sharp picture on dense screens.

const LEEREN = 0, LINIE = 1, RAHMEN = 2, FLAECHE = 3, KREIS = 4, PUNKT = 5, TEXT = 6;

function farbe(zahl) {
  return '#' + Math.round(zahl).toString(16).padStart(6, '0');
}

// Pixels are rounded half away from zero, as the desktop's backend does.
function r(x) {
  return Math.sign(x) * Math.round(Math.abs(x));
}

const hoehen = new Map();
const messer = document.createElement('canvas').getContext('2d');

export function textbreite(font, text) {
  messer.font = font;
  return messer.measureText(text).width;
}

// The line height of a font: ascent and descent of the font's box.
export function texthoehe(font) {
  let h = hoehen.get(font);
  if (h === undefined) {
    messer.font = font;
    const m = messer.measureText('Hg');
    h = Math.ceil(m.fontBoundingBoxAscent + m.fontBoundingBoxDescent);
    hoehen.set(font, h);
  }
  return h;
}

const oberlaengen = new Map();
function oberlaenge(font) {
  let a = oberlaengen.get(font);
  if (a === undefined) {
    messer.font = font;
    a = messer.measureText('Hg').fontBoundingBoxAscent;
    oberlaengen.set(font, a);
  }
  return a;
}

export function abspielen(canvas, befehle, texte, breite, hoehe, massstab) {
  const ctx = canvas.getContext('2d');
  ctx.setTransform(massstab, 0, 0, massstab, 0, 0);
  ctx.lineCap = 'butt';
  // Consecutive lines of one colour and width are stroked as one path, and consecutive areas of
  // one colour filled as one: a temperature course has hundreds of lines and a thousand areas.
  let offen = null, offen_schluessel = null;
  const schliessen = () => {
    if (offen === LINIE) ctx.stroke();
    else if (offen === FLAECHE) ctx.fill();
    offen = null;
  };
  const sammeln = (art, schluessel) => {
    if (offen === art && offen_schluessel === schluessel) return false;
    schliessen();
    ctx.beginPath();
    offen = art;
    offen_schluessel = schluessel;
    return true;
  };
  let i = 0;
  while (i < befehle.length) {
    const art = befehle[i];
    if (art !== offen) schliessen();
    switch (art) {
      case LEEREN:
        ctx.fillStyle = farbe(befehle[i + 1]);
        ctx.fillRect(0, 0, breite, hoehe);
        i += 2;
        break;
      case LINIE: {
        const x1 = r(befehle[i + 1]), y1 = r(befehle[i + 2]);
        const x2 = r(befehle[i + 3]), y2 = r(befehle[i + 4]);
        const w = befehle[i + 6];
        const schluessel = befehle[i + 5] * 64 + w;
        // The end pixel is left out: the line stops half a pixel short of its end's centre.
        const dx = x2 - x1, dy = y2 - y1, l = Math.hypot(dx, dy);
        if (l > 0) {
          if (sammeln(LINIE, schluessel)) {
            ctx.strokeStyle = farbe(befehle[i + 5]);
            ctx.lineWidth = w;
          }
          const o = w % 2 === 1 ? 0.5 : 0;
          const k = (l - 0.5) / l;
          ctx.moveTo(x1 + o - (dx / l) * 0.5, y1 + o - (dy / l) * 0.5);
          ctx.lineTo(x1 + o + dx * k, y1 + o + dy * k);
        }
        i += 7;
        break;
      }
      case RAHMEN: {
        const x = Math.min(r(befehle[i + 1]), r(befehle[i + 3]));
        const y = Math.min(r(befehle[i + 2]), r(befehle[i + 4]));
        const w = Math.abs(r(befehle[i + 3]) - r(befehle[i + 1]));
        const h = Math.abs(r(befehle[i + 4]) - r(befehle[i + 2]));
        ctx.strokeStyle = farbe(befehle[i + 5]);
        ctx.lineWidth = 1;
        ctx.strokeRect(x + 0.5, y + 0.5, w, h);
        i += 6;
        break;
      }
      case FLAECHE: {
        const x = Math.min(r(befehle[i + 1]), r(befehle[i + 3]));
        const y = Math.min(r(befehle[i + 2]), r(befehle[i + 4]));
        const w = Math.abs(r(befehle[i + 3]) - r(befehle[i + 1])) + 1;
        const h = Math.abs(r(befehle[i + 4]) - r(befehle[i + 2])) + 1;
        if (sammeln(FLAECHE, befehle[i + 5])) ctx.fillStyle = farbe(befehle[i + 5]);
        ctx.rect(x, y, w, h);
        i += 6;
        break;
      }
      case KREIS: {
        const cx = r(befehle[i + 1]) + 0.5, cy = r(befehle[i + 2]) + 0.5;
        const rad = befehle[i + 3];
        const linie = befehle[i + 4], w = befehle[i + 5], fuellung = befehle[i + 6];
        const start = befehle[i + 7], ende = befehle[i + 8];
        i += 9;
        if (rad < 0.5) {
          break;
        }
        ctx.beginPath();
        if (start === 0 && ende === 0) {
          ctx.arc(cx, cy, rad, 0, 2 * Math.PI);
        } else {
          // Counter-clockwise on the screen: the canvas turns the other way.
          const a = Math.abs(start), b = Math.abs(ende);
          if (start < 0) {
            ctx.moveTo(cx, cy);
          }
          ctx.arc(cx, cy, rad, -a, -b, true);
          if (ende < 0) {
            ctx.lineTo(cx, cy);
          }
          if (start < 0 && ende < 0) {
            ctx.closePath();
          }
        }
        if (fuellung >= 0) {
          ctx.fillStyle = farbe(fuellung);
          ctx.fill();
        }
        ctx.strokeStyle = farbe(linie);
        ctx.lineWidth = w;
        ctx.stroke();
        break;
      }
      case PUNKT: {
        const w = befehle[i + 4];
        ctx.fillStyle = farbe(befehle[i + 3]);
        const o = Math.floor((w - 1) / 2);
        ctx.fillRect(r(befehle[i + 1]) - o, r(befehle[i + 2]) - o, w, w);
        i += 5;
        break;
      }
      case TEXT: {
        const font = texte[befehle[i + 4]];
        ctx.font = font;
        ctx.fillStyle = '#000';
        ctx.textBaseline = 'alphabetic';
        ctx.fillText(texte[befehle[i + 3]], r(befehle[i + 1]), r(befehle[i + 2]) + oberlaenge(font));
        i += 5;
        break;
      }
      default:
        throw new Error('unknown chart command ' + art);
    }
  }
  schliessen();
}
