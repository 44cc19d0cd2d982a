// The German map of the twelve climate regions: klima0.bmp without highlight and klima1.bmp ..
// klima12.bmp with one region highlighted. The program finds the region under the mouse by
// comparing colours with twelve fixed reference pixels, so every region has a colour of its own
// and each reference pixel must lie inside its own region; both are checked before writing.
'use strict';
const { Bild, zahl } = require('./raster');
const { staat, land, grenzen, innen } = require('./geo');
const { lambert } = require('./lambert');

// Reference pixel (x, y) of each region 1..12 on the map.
const REFERENZ = [null, [110, 20], [140, 90], [35, 135], [90, 140], [90, 220], [70, 200],
  [45, 260], [90, 270], [60, 250], [70, 270], [25, 175], [75, 285]];

// Lambert conformal conic, standard parallels 48.67 and 53.67 N, central meridian 16 E, placed
// so that the reference pixels fall into their regions with a margin of several pixels.
const BREITE = 234, HOEHE = 315;
const MASSSTAB = 39.5, X0 = 253.99315231618192, Y0 = 170.39007895085734;
const konisch = lambert(16, 48.67, 53.67, 51);
function karte(lon, lat) {
  const [x, y] = konisch(lon, lat);
  return [X0 + x * MASSSTAB, Y0 - y * MASSSTAB];
}

// Region colours; none is the highlight, an outline or a background colour.
const FARBE = [null, [120, 190, 230], [160, 215, 140], [200, 200, 200], [235, 215, 120],
  [240, 170, 110], [250, 235, 170], [215, 160, 210], [140, 200, 190], [170, 170, 235],
  [100, 160, 120], [180, 140, 100], [80, 150, 220]];
const HERVOR = [220, 20, 40];
const MEER = [225, 240, 250], AUSLAND = [238, 238, 232], UMRISS = [60, 60, 60], TRENN = [255, 255, 255];

// Places that belong to a region, [region, longitude, latitude]: every map pixel of Germany goes
// to the region of its nearest place. The reference pixels themselves are places too.
const ORTE = [
  [1, 8.4, 54.9], [1, 9.4, 54.75], [1, 8.8, 54.3], [1, 10.1, 54.35], [1, 11.1, 54.4],
  [1, 11.9, 54.15], [1, 12.9, 54.4], [1, 13.4, 54.4], [1, 13.9, 54.0], [1, 8.6, 53.8],
  [1, 7.3, 53.55], [1, 8.1, 53.6],
  [2, 8.2, 53.05], [2, 8.8, 53.05], [2, 7.5, 52.6], [2, 7.7, 52.0], [2, 9.7, 52.5],
  [2, 10.4, 53.1], [2, 9.3, 53.3], [2, 11.4, 53.55], [2, 12.7, 53.6], [2, 13.8, 53.4],
  [2, 12.3, 52.9], [2, 14.0, 52.2], [2, 14.3, 51.6], [2, 12.8, 51.9], [2, 11.8, 52.0],
  [2, 10.6, 52.3], [2, 12.2, 51.5], [2, 13.3, 51.4], [2, 6.5, 52.4], [2, 6.3, 51.75],
  [3, 7.2, 51.5], [3, 6.85, 51.2], [3, 6.95, 50.95], [3, 7.5, 51.5],
  [4, 9.5, 51.3], [4, 8.2, 51.3], [4, 6.6, 50.15], [4, 8.0, 50.8], [4, 9.3, 51.9],
  [4, 11.0, 50.95], [4, 12.5, 50.8], [4, 13.8, 51.05], [4, 14.6, 51.1], [4, 12.2, 49.7],
  [4, 9.0, 50.75], [4, 6.95, 49.35], [4, 7.7, 49.45], [4, 10.5, 51.3], [4, 11.9, 51.2],
  [4, 7.4, 50.3], [4, 6.3, 50.7],
  [5, 9.93, 49.8], [5, 11.07, 49.45], [5, 10.9, 49.9], [5, 9.2, 49.15], [5, 9.18, 48.78],
  [5, 10.6, 49.3], [5, 9.7, 49.4], [5, 10.3, 50.1],
  [6, 8.68, 50.11], [6, 8.27, 49.95], [6, 8.47, 49.49], [6, 8.65, 49.87], [6, 8.4, 49.05],
  [6, 8.1, 49.25],
  [7, 7.6, 48.03], [7, 7.66, 47.65], [7, 7.8, 48.3], [7, 7.95, 48.55],
  [8, 9.99, 48.4], [8, 10.9, 48.37], [8, 11.42, 48.76], [8, 12.1, 49.0], [8, 12.6, 48.85],
  [8, 13.4, 48.57], [8, 12.15, 48.54], [8, 11.6, 48.2], [8, 9.7, 48.1], [8, 10.2, 48.05],
  [9, 8.35, 48.65], [9, 10.3, 47.73], [9, 11.1, 47.65], [9, 12.1, 47.8], [9, 11.55, 47.75],
  [9, 12.65, 47.8], [9, 10.9, 47.45], [9, 12.9, 47.6], [9, 10.7, 47.8],
  [10, 8.1, 47.9], [10, 8.2, 48.2], [10, 9.2, 48.35], [10, 9.8, 48.6], [10, 11.4, 49.1],
  [10, 11.3, 49.7], [10, 10.7, 48.85], [10, 8.75, 48.1],
  [11, 6.4, 50.4], [11, 7.1, 50.5],
  [12, 9.2, 47.7], [12, 9.5, 47.6],
];

// High and urban areas drawn over the partition: [region, longitude, latitude, radius in px].
const FLECKEN = [
  [11, 10.6, 51.75, 7], [11, 8.4, 51.15, 6], [11, 7.15, 49.85, 6], [11, 9.2, 50.5, 5],
  [11, 9.95, 50.45, 6], [11, 10.8, 50.6, 7], [11, 12.9, 50.55, 7], [11, 11.85, 50.05, 5],
  [11, 13.3, 48.95, 8], [11, 6.45, 50.4, 7],
  [3, 10.0, 53.55, 6], [3, 13.4, 52.5, 7], [3, 12.4, 51.35, 4], [3, 9.75, 52.38, 4],
];

function regionen(deutschland) {
  const orte = ORTE.map(([r, lon, lat]) => [r, ...karte(lon, lat)]);
  for (let r = 1; r <= 12; r++) orte.push([r, ...REFERENZ[r]]);
  const flecken = FLECKEN.map(([r, lon, lat, radius]) => [r, ...karte(lon, lat), radius]);
  const feld = new Int8Array(BREITE * HOEHE);
  const probe = new Bild(BREITE, HOEHE, [0, 0, 0]);
  probe.polygon(deutschland, [1, 1, 1]);
  for (let y = 0; y < HOEHE; y++) {
    for (let x = 0; x < BREITE; x++) {
      if (probe.lesen(x, y)[0] === 0) continue;
      let best = 0, dmin = Infinity;
      for (const [r, ox, oy] of orte) {
        const d = (ox - x) ** 2 + (oy - y) ** 2;
        if (d < dmin) { dmin = d; best = r; }
      }
      for (const [r, fx, fy, radius] of flecken) if ((fx - x) ** 2 + (fy - y) ** 2 <= radius * radius) best = r;
      feld[y * BREITE + x] = best;
    }
  }
  return feld;
}

function projiziert(ringe) {
  return ringe.map((r) => r.map(([lon, lat]) => karte(lon, lat)));
}

function grundkarte(feld, hervor, aussen, deutschland, grenzlinien) {
  const bild = new Bild(BREITE, HOEHE, MEER);
  bild.polygon(aussen, AUSLAND);
  for (const linie of grenzlinien) {
    for (let i = 1; i < linie.length; i++) bild.linie(...linie[i - 1], ...linie[i], [180, 180, 170]);
  }
  for (let y = 0; y < HOEHE; y++) {
    for (let x = 0; x < BREITE; x++) {
      const r = feld[y * BREITE + x];
      if (r) bild.setzen(x, y, r === hervor ? HERVOR : FARBE[r]);
    }
  }
  // Thin white lines between regions, then the outline of the country.
  for (let y = 0; y < HOEHE - 1; y++) {
    for (let x = 0; x < BREITE - 1; x++) {
      const r = feld[y * BREITE + x];
      if (r && ((feld[y * BREITE + x + 1] && feld[y * BREITE + x + 1] !== r) ||
                (feld[(y + 1) * BREITE + x] && feld[(y + 1) * BREITE + x] !== r))) bild.setzen(x, y, TRENN);
    }
  }
  for (const ring of deutschland) {
    for (let i = 0; i < ring.length; i++) bild.linie(...ring[i], ...ring[(i + 1) % ring.length], UMRISS);
  }
  for (let r = 1; r <= 12; r++) {
    const [x, y] = REFERENZ[r];
    zahl(bild, x + 3, y - 7, r, r === hervor ? [255, 255, 255] : [0, 0, 0]);
  }
  return bild;
}

function pruefen(bild, name) {
  const gesehen = new Set();
  for (let r = 1; r <= 12; r++) {
    const f = bild.lesen(...REFERENZ[r]).join(',');
    if (gesehen.has(f)) throw new Error(`${name}: region ${r} shares its colour ${f}`);
    gesehen.add(f);
    for (const [dx, dy] of [[1, 0], [-1, 0], [0, 1], [0, -1]]) {
      if (bild.lesen(REFERENZ[r][0] + dx, REFERENZ[r][1] + dy).join(',') !== f) {
        throw new Error(`${name}: reference pixel of region ${r} lies on an edge`);
      }
    }
  }
}

// The region of a place, by the map's partition; a place that the outline leaves just outside
// (a border town) takes the region of the nearest map pixel of Germany.
function region_fuer_ort() {
  const feld = regionen(projiziert(staat('10m', '276')));
  return (lon, lat) => {
    const [px, py] = karte(lon, lat);
    const x = Math.round(px), y = Math.round(py);
    for (let radius = 0; radius < 20; radius++) {
      let best = 0, dmin = Infinity;
      for (let dy = -radius; dy <= radius; dy++) {
        for (let dx = -radius; dx <= radius; dx++) {
          const xx = x + dx, yy = y + dy;
          if (xx < 0 || yy < 0 || xx >= BREITE || yy >= HOEHE) continue;
          const r = feld[yy * BREITE + xx];
          if (r && dx * dx + dy * dy < dmin) { dmin = dx * dx + dy * dy; best = r; }
        }
      }
      if (best) return best;
    }
    throw new Error(`place ${lon} ${lat} lies far outside the map of Germany`);
  };
}

function main(ziel) {
  const deutschland = projiziert(staat('10m', '276'));
  const nachbarn = projiziert(land('10m').filter((r) => r.some(([lon, lat]) => lon > 0 && lon < 20 && lat > 44 && lat < 58)));
  const grenzlinien = grenzen('10m')
    .filter((l) => l.some(([lon, lat]) => lon > 2 && lon < 19 && lat > 45 && lat < 57))
    .map((l) => l.map(([lon, lat]) => karte(lon, lat)));
  const feld = regionen(deutschland);
  for (let r = 1; r <= 12; r++) {
    const [x, y] = REFERENZ[r];
    if (feld[y * BREITE + x] !== r) throw new Error(`reference pixel of region ${r} lies in region ${feld[y * BREITE + x]}`);
  }
  for (let hervor = 0; hervor <= 12; hervor++) {
    const bild = grundkarte(feld, hervor, nachbarn, deutschland, grenzlinien);
    pruefen(bild, `klima${hervor}`);
    bild.schreiben(`${ziel}/klima${hervor}.bmp`);
  }
}

module.exports = { region_fuer_ort };
if (require.main === module) main(process.argv[2] || `${__dirname}/../../Grafiken`);
