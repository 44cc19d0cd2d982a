// The Europe and the world map of the climate plane. Station dots are placed by fixed formulas
// from latitude and longitude, so the pictures are drawn with exactly those formulas: each pixel
// is turned back into a longitude and a latitude and coloured by the land outline there.
'use strict';
const { Bild } = require('./raster');
const { land, grenzen, innen } = require('./geo');

const MEER = [190, 220, 245], LAND = [205, 225, 180], GRENZE = [150, 160, 130];

// Europe: Y = 132/30 (74.104 - B), X' = (O + 25.203) 92/30, X = X' + Y/240 (X' 12/31 - 1193/31),
// with B the latitude and O the longitude east positive; the picture spans X 0..233, Y 0..200.
function europa(lon, lat) {
  const y = (132 / 30) * (74.104 - lat);
  const xs = (lon + 25.203) * (92 / 30);
  return [xs + (y / 240) * (xs * (12 / 31) - 1193 / 31), y];
}
function europa_zurueck(x, y) {
  const lat = 74.104 - (y * 30) / 132;
  const xs = (x + (y / 240) * (1193 / 31)) / (1 + (y / 240) * (12 / 31));
  return [(xs * 30) / 92 - 25.203, lat];
}

// World: Xw = O 1.677777778 + 325, Yw = 123 - 1.677777778 B.
const WELT_K = 1.677777778;
function welt(lon, lat) {
  return [lon * WELT_K + 325, 123 - WELT_K * lat];
}
function welt_zurueck(x, y) {
  let lon = (x - 325) / WELT_K;
  if (lon > 180) lon -= 360;
  if (lon < -180) lon += 360;
  return [lon, (123 - y) / WELT_K];
}

// Colours every pixel by the land test at its centre, with four samples for a softer coast.
function malen(bild, zurueck, ringe) {
  // Bounding boxes let most rings be skipped for a point.
  const boxen = ringe.map((r) => {
    let a = Infinity, b = -Infinity, c = Infinity, d = -Infinity;
    for (const [lon, lat] of r) { a = Math.min(a, lon); b = Math.max(b, lon); c = Math.min(c, lat); d = Math.max(d, lat); }
    return [a, b, c, d];
  });
  const ist_land = (lon, lat) => {
    let drin = false;
    for (let i = 0; i < ringe.length; i++) {
      const [a, b, c, d] = boxen[i];
      if (lat < c || lat > d) continue;
      for (const l of [lon, lon + 360, lon - 360]) {
        if (l >= a && l <= b && innen([ringe[i]], l, lat)) drin = !drin;
      }
    }
    return drin;
  };
  for (let y = 0; y < bild.hoehe; y++) {
    for (let x = 0; x < bild.breite; x++) {
      let n = 0;
      for (const [dx, dy] of [[0.25, 0.25], [0.75, 0.25], [0.25, 0.75], [0.75, 0.75]]) {
        const [lon, lat] = zurueck(x + dx, y + dy);
        if (ist_land(lon, lat)) n++;
      }
      const f = MEER.map((m, i) => Math.round(m + ((LAND[i] - m) * n) / 4));
      bild.setzen(x, y, f);
    }
  }
}

function grenzen_zeichnen(bild, hin, linien, sprung) {
  for (const l of linien) {
    for (let i = 1; i < l.length; i++) {
      const a = hin(...l[i - 1]), b = hin(...l[i]);
      if (Math.abs(a[0] - b[0]) < sprung) bild.linie(...a, ...b, GRENZE);
    }
  }
}

function main(ziel) {
  const e = new Bild(234, 201, MEER);
  malen(e, europa_zurueck, land('50m'));
  grenzen_zeichnen(e, europa, grenzen('50m'), 50);
  e.schreiben(`${ziel}/europa.bmp`);

  const w = new Bild(650, 250, MEER);
  malen(w, welt_zurueck, land('110m'));
  grenzen_zeichnen(w, welt, grenzen('110m'), 300);
  w.schreiben(`${ziel}/welt.bmp`);
}

module.exports = { europa, welt };
if (require.main === module) main(process.argv[2] || `${__dirname}/../../Grafiken`);
